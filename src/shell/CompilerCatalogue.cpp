#include "shell/CompilerCatalogue.h"

#include "values/Texte1252.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <map>

namespace dorvane::shell {

namespace {

constexpr std::uint32_t MessagesParBloc = 1000;
constexpr std::uint32_t DernierMessage = 32000;
constexpr std::size_t LongueurMaximum = 199;

std::vector<std::string_view> Couper(std::string_view ligne, char separateur) {
    std::vector<std::string_view> morceaux;
    for (;;) {
        const std::size_t p = ligne.find(separateur);
        morceaux.push_back(ligne.substr(0, p));
        if (p == std::string_view::npos) return morceaux;
        ligne.remove_prefix(p + 1);
    }
}

/// Takes the lines of the lists one after the other.
class Compilateur {
public:
    explicit Compilateur(std::string_view colonne) : colonne_{colonne} {}

    void Lire(const SourceCatalogue& source) {
        source_ = source.nom;
        no_ = 0;
        numero_ = langue_ = Inconnue;
        bool entete = true;
        for (std::string_view ligne : Couper(source.texte, '\n')) {
            ++no_;
            if (ligne.ends_with('\r')) ligne.remove_suffix(1);
            if (ligne.empty() || ligne.starts_with('#')) continue;
            if (entete) {
                entete = false;
                if (!LireEntete(ligne)) return;
            } else {
                LireLigne(ligne);
            }
        }
    }

    std::map<std::uint32_t, std::string> textes;
    std::vector<ErreurCatalogue> erreurs;

private:
    static constexpr std::size_t Inconnue = static_cast<std::size_t>(-1);

    void Refuser(std::string texte) { erreurs.push_back({source_, no_, std::move(texte)}); }

    bool LireEntete(std::string_view ligne) {
        const std::vector<std::string_view> noms = Couper(ligne, '\t');
        for (std::size_t i = 0; i < noms.size(); ++i) {
            if (noms[i] == "number") numero_ = i;
            if (noms[i] == colonne_) langue_ = i;
        }
        if (numero_ == Inconnue) Refuser("no column \"number\"");
        if (langue_ == Inconnue) Refuser("no column \"" + std::string{colonne_} + "\"");
        return numero_ != Inconnue && langue_ != Inconnue;
    }

    void LireLigne(std::string_view ligne) {
        const std::vector<std::string_view> cases = Couper(ligne, '\t');
        if (cases.size() <= std::max(numero_, langue_)) {
            Refuser("missing columns");
            return;
        }
        const std::string_view chiffres = cases[numero_];
        std::uint32_t numero = 0;
        const auto [fin, erreur] =
            std::from_chars(chiffres.data(), chiffres.data() + chiffres.size(), numero);
        if (erreur != std::errc{} || fin != chiffres.data() + chiffres.size() || numero == 0 ||
            numero > DernierMessage) {
            Refuser("number out of 1 to 32000: " + std::string{chiffres});
            return;
        }
        TexteRecu recu = Utf8VersTexte(cases[langue_]);
        if (recu.octets.empty()) Refuser("empty text");
        if (recu.remplaces != 0) Refuser("a character that code page 1252 lacks");
        if (recu.octets.size() > LongueurMaximum) Refuser("text over 199 bytes");
        if (std::any_of(recu.octets.begin(), recu.octets.end(),
                        [](char c) { return static_cast<unsigned char>(c) < 0x20; }))
            Refuser("a control character");
        if (!textes.emplace(numero, std::move(recu.octets)).second)
            Refuser("number given twice: " + std::string{chiffres});
    }

    std::string_view colonne_;
    std::string source_;
    std::size_t no_ = 0;
    std::size_t numero_ = Inconnue;
    std::size_t langue_ = Inconnue;
};

void PoserEntier(std::string& octets, std::size_t decalage, std::size_t valeur) {
    for (std::size_t i = 0; i < 4; ++i)
        octets[decalage + i] = static_cast<char>((valeur >> (8 * i)) & 0xFFU);
}

/// Table of the blocks, then for each block its table and its texts in the order of their numbers.
std::string Assembler(const std::map<std::uint32_t, std::string>& textes) {
    std::string octets(4 * DernierMessage / MessagesParBloc, '\0');
    std::size_t table = 0;
    std::uint32_t bloc = 0;
    for (const auto& [numero, texte] : textes) {
        const std::uint32_t sien = (numero - 1) / MessagesParBloc + 1;
        if (sien != bloc) {
            bloc = sien;
            table = octets.size();
            PoserEntier(octets, 4 * (std::size_t{bloc} - 1), table + 1);
            octets.append(4 * std::size_t{MessagesParBloc}, '\0');
        }
        const std::size_t rang = (numero - 1) % MessagesParBloc;
        PoserEntier(octets, table + 4 * rang, octets.size() + 1);
        octets += texte;
        octets += '\0';
    }
    return octets;
}

}  // namespace

CatalogueCompile CompilerCatalogue(std::span<const SourceCatalogue> sources,
                                   std::string_view colonne) {
    Compilateur compilateur{colonne};
    for (const SourceCatalogue& source : sources)
        compilateur.Lire(source);
    CatalogueCompile compile;
    compile.erreurs = std::move(compilateur.erreurs);
    if (compile.erreurs.empty()) compile.octets = Assembler(compilateur.textes);
    return compile;
}

}  // namespace dorvane::shell
