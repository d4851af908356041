#include "shell/ListesInitiales.h"

#include "values/SortesEvenement.h"

#include <array>
#include <cstddef>

namespace dorvane::shell {

namespace {

using Mot = std::string_view;

constexpr Mot Rubriques[] = {"TITL", "RELA", "EVEN"};

constexpr Mot Titres[] = {"IMPR", "IMPE", "KING", "QUEN", "DUKE",
                          "DUCH", "EARL", "COUN", "SIRE", "LADY"};

constexpr Mot Relations[] = {"CHIL", "FATH", "MOTH", "HUSB", "WIFE", "DEAD", "WIDW", "WIDR",
                             "SON",  "DAUG", "WITN", "GODF", "GODM", "GODC", "WARD", "GUAR",
                             "SUCC", "BROT", "SIST", "UNCL", "AUNT", "GFAT", "GMOT", "SINL",
                             "DINL", "FINL", "BINL", "MINL", "SIIL", "HEIR", "HEIS"};

constexpr std::size_t NbEvenements = 29;

/// The kinds of events that are usual words.
consteval std::array<Mot, NbEvenements> TagsUsuels() {
    std::array<Mot, NbEvenements> tags;
    std::size_t n = 0;
    for (const SorteConnue& sorte : SortesEvenement)
        if (sorte.A(UsageSorte::Usuelle)) tags[n++] = sorte.tag;
    return tags;
}

constexpr std::array<Mot, NbEvenements> Evenements = TagsUsuels();

constexpr ListeInitiale Usuels[] = {
    {"Liste Rubriques", Rubriques},
    {"Rubrique TITL", Titres},
    {"Rubrique RELA", Relations},
    {"Rubrique EVEN", Evenements},
};

constexpr Mot DeNaissance[] = {"M CHIL", " HFATH", " FMOTH", "  WITN"};
constexpr Mot DeBapteme[] = {"M CHIL", " HGODF", " FGODM"};
constexpr Mot DeCouple[] = {"MHHUSB", "MFWIFE"};
constexpr Mot DeDeces[] = {"M DEAD", " HWIDR", " FWIDW", " HSON", " FDAUG"};
constexpr Mot DeCremation[] = {"M DEAD", " HWIDR", " FWIDW"};
constexpr Mot DeSuccession[] = {"M DEAD", " HSON", " FDAUG"};
constexpr Mot DEnfant[] = {"M CHIL"};
constexpr Mot DeGarcon[] = {"MHCHIL"};
constexpr Mot DeFille[] = {"MFCHIL"};
constexpr Mot DInteresse[] = {"M MAIN"};

constexpr EvenementInitial Types[] = {
    {tag::Naissance, DeNaissance},
    {tag::Bapteme, DeBapteme},
    {tag::Mariage, DeCouple},
    {tag::Deces, DeDeces},
    {tag::Inhumation, DeDeces},
    {"ADOP", DEnfant},
    {"BARM", DeGarcon},
    {"BASM", DeFille},
    {"ORDN", DInteresse},
    {"CENS", DInteresse},
    {"FCOM", DEnfant},
    {"CONF", DEnfant},
    {"CREM", DeCremation},
    {"EMIG", DInteresse},
    {"GRAD", DInteresse},
    {"IMMI", DInteresse},
    {"NATU", DInteresse},
    {"RETI", DInteresse},
    {"PROB", DeSuccession},
    {"WILL", DeSuccession},
    {"ANUL", DeCouple},
    {tag::Divorce, DeCouple},
    {"DIVF", DeCouple},
    {"ENGA", DeCouple},
    {"MARC", DeCouple},
    {tag::Contrat, DeCouple},
};

constexpr Mot Extensions[] = {"BMP", "DIB", "EMF", "WMF", "GIF", "JPG", "CUT", "GEM", "IFF", "IMG",
                              "LBM", "MAC", "MSP", "PCX", "PIC", "RLE", "TGA", "TIF", "WPG"};

}  // namespace

std::span<const ListeInitiale> UsuelsInitiaux() {
    return Usuels;
}

std::span<const EvenementInitial> EvenementsInitiaux() {
    return Types;
}

std::span<const std::string_view> ExtensionsGraphisme() {
    return Extensions;
}

}  // namespace dorvane::shell
