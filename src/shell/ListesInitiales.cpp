#include "shell/ListesInitiales.h"

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

constexpr Mot Evenements[] = {"BIRT", "BURI", "CHR",  "DEAT", "MARR", "ADOP", "ANUL", "BARM",
                              "BASM", "BLES", "CENS", "CONF", "CREM", "DIV",  "DIVF", "EMIG",
                              "ENDL", "ENGA", "FCOM", "IMMI", "MARB", "MARC", "MARL", "NATU",
                              "ORDN", "PROB", "RETI", "WILL", "GRAD"};

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
    {"BIRT", DeNaissance}, {"CHR", DeBapteme},   {"MARR", DeCouple},     {"DEAT", DeDeces},
    {"BURI", DeDeces},     {"ADOP", DEnfant},    {"BARM", DeGarcon},     {"BASM", DeFille},
    {"ORDN", DInteresse},  {"CENS", DInteresse}, {"FCOM", DEnfant},      {"CONF", DEnfant},
    {"CREM", DeCremation}, {"EMIG", DInteresse}, {"GRAD", DInteresse},   {"IMMI", DInteresse},
    {"NATU", DInteresse},  {"RETI", DInteresse}, {"PROB", DeSuccession}, {"WILL", DeSuccession},
    {"ANUL", DeCouple},    {"DIV", DeCouple},    {"DIVF", DeCouple},     {"ENGA", DeCouple},
    {"MARC", DeCouple},    {"MARL", DeCouple},
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
