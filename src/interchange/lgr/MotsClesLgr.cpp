#include "interchange/lgr/MotsClesLgr.h"

#include "values/Comparaison.h"
#include "values/JetonsRtf.h"
#include "values/Marqueurs.h"
#include "values/Texte1252.h"

#include <algorithm>

namespace dorvane::interchange {
namespace {

/// What no keyword can have as its marker: it is part of words, or ends a record.
bool EstInterdit(char c) {
    return static_cast<unsigned char>(c) <= ' ' || c == '-' || c == '#' || EstChiffre(c) ||
           EnMajuscule(c) != EnMinuscule(c);
}

/// One byte of the text inside rich text.
void AjouterRiche(std::string& sortie, char c) {
    constexpr std::string_view Hexa = "0123456789abcdef";
    const auto octet = static_cast<unsigned char>(c);
    if (octet < 0x80 && c != '\\' && c != '{' && c != '}') {
        sortie += c;
        return;
    }
    sortie.append("\\'").append(1, Hexa[octet >> 4U]).append(1, Hexa[octet & 0xFU]);
}

}  // namespace

MotsClesLgr::MotsClesLgr(storage::Base& base, const shell::TableLibelles& libelles,
                         const ContenuLgr& contenu, RapportImport& rapport)
    : base_{base} {
    for (std::size_t i = 0; i < table_.size(); ++i)
        table_[i] = static_cast<char>(static_cast<unsigned char>(i));
    for (const MotCleLgr& motCle : contenu.motsCles)
        Reprendre(motCle, contenu, libelles, rapport);
}

NoMotCle MotsClesLgr::Chercher(std::string_view tag, const shell::TableLibelles& libelles) {
    for (NoMotCle k{1}; k.valeur <= base_.motsCles.Nombre(); ++k.valeur) {
        const storage::MotCle& type = base_.motsCles.LibelleType(k);
        if (type.symbole != ' ' && libelles.TagDeLibelle(type.libelle) == tag) return k;
    }
    return {};
}

bool MotsClesLgr::EstLibre(char marqueur) {
    return !EstInterdit(marqueur) && !base_.motsCles.TypeDuSymbole(marqueur);
}

char MotsClesLgr::MarqueurLibre(char voulu) {
    if (EstLibre(voulu)) return voulu;
    for (const char marqueur : ListeMarqueurs())
        if (EstLibre(marqueur)) return marqueur;
    return '\0';
}

/// The first place that a keyword left, else the one behind the last.
NoMotCle MotsClesLgr::Place() {
    NoMotCle k{1};
    while (k.valeur <= base_.motsCles.Nombre() && base_.motsCles.LibelleType(k).symbole != ' ')
        ++k.valeur;
    return k.valeur <= storage::MaxMotsCles ? k : NoMotCle{};
}

/// Takes the keyword with this marker out of a new base when the file does not have it.
void MotsClesLgr::FaireCeder(char marqueur, const ContenuLgr& contenu,
                             const shell::TableLibelles& libelles) {
    const NoMotCle k = base_.motsCles.TypeDuSymbole(marqueur);
    if (!k || base_.entete.DernierIndividu != 0 || EstMarqueurFixe(marqueur)) return;
    const std::string tag{libelles.TagDeLibelle(base_.motsCles.LibelleType(k).libelle)};
    const bool voulu = std::ranges::any_of(contenu.motsCles, [&](const MotCleLgr& m) {
        return libelles.TagDeLibelle(SansBlancs(m.libelle)) == tag;
    });
    if (voulu) return;
    base_.motsCles.EffacerType(k);
}

void MotsClesLgr::Reprendre(const MotCleLgr& motCle, const ContenuLgr& contenu,
                            const shell::TableLibelles& libelles, RapportImport& rapport) {
    if (motCle.marqueur == marqueur::Nom || motCle.marqueur == marqueur::Prenom) {
        types_.push_back(base_.motsCles.TypeDuSymbole(motCle.marqueur));
        return;
    }
    const std::string libelle = storage::SansDiese(SansBlancs(motCle.libelle));
    if (libelle.empty() || EstInterdit(motCle.marqueur)) {
        rapport.Noter(Constat::Illisible, "MOTS CLES", 0);
        return;
    }
    const std::string tag{libelles.TagDeLibelle(libelle)};
    NoMotCle k = Chercher(std::string_view{tag}.substr(0, 34), libelles);
    if (!k) {
        FaireCeder(motCle.marqueur, contenu, libelles);
        const char marqueur = MarqueurLibre(motCle.marqueur);
        k = Place();
        if (marqueur == '\0' || !k) {
            rapport.Noter(Constat::Limite, "MOTS CLES", 0);
            return;
        }
        base_.motsCles.CreerType(k, {marqueur, tag, false, {}});
        nouveaux_.push_back(k);
    }
    types_.push_back(k);
    const storage::MotCle type = base_.motsCles.LibelleType(k);
    table_[static_cast<unsigned char>(motCle.marqueur)] = type.symbole;
    change_ = change_ || type.symbole != motCle.marqueur;
    // The words of the fixed ones stand in the first line of a text only.
    if (libelle != type.libelle && !EstMarqueurFixe(motCle.marqueur))
        libelles_.emplace_back(libelle, type.libelle);
}

std::size_t MotsClesLgr::ConvertirRiche(std::string_view texte, std::string& sortie) const {
    JetonsRtf jetons{texte};
    int profondeur = 0;
    while (!jetons.Fini()) {
        const JetonRtf jeton = jetons.Lire();
        const bool signe = jeton.sorte == JetonRtf::Sorte::Symbole &&
                           std::string_view{"\\{}"}.find(jeton.octet) != std::string_view::npos;
        if ((signe || jeton.sorte == JetonRtf::Sorte::Octet) &&
            Marqueur(jeton.octet) != jeton.octet)
            AjouterRiche(sortie, Marqueur(jeton.octet));
        else
            sortie += jeton.brut;
        if (jeton.sorte == JetonRtf::Sorte::Ouvre) ++profondeur;
        if (jeton.sorte == JetonRtf::Sorte::Ferme && --profondeur <= 0) break;
    }
    return jetons.Place();
}

// Characters outside rich text are markers wherever they stand. In rich text the commands are not
// touched.
void MotsClesLgr::ConvertirMarqueurs(std::string_view texte, std::string& sortie) const {
    sortie.clear();
    sortie.reserve(texte.size() + 16);
    while (!texte.empty()) {
        const std::size_t riche = std::min(texte.find(TeteRtf), texte.size());
        for (const char c : texte.substr(0, riche))
            sortie += Marqueur(c);
        texte.remove_prefix(riche);
        if (!texte.empty()) texte.remove_prefix(ConvertirRiche(texte, sortie));
    }
}

/// Slot lines begin with the label of their keyword and a blank.
void MotsClesLgr::ConvertirLibelles(std::string& texte) const {
    for (std::size_t fin = texte.find('\n'); fin != std::string::npos;
         fin = texte.find('\n', fin + 1)) {
        const std::string_view ligne = std::string_view{texte}.substr(fin + 1);
        for (const auto& [de, vers] : libelles_) {
            if (!ligne.starts_with(de) || ligne.substr(de.size(), 1) != " ") continue;
            texte.replace(fin + 1, de.size(), vers);
            break;
        }
    }
}

std::string_view MotsClesLgr::Convertir(std::string_view texte, std::string& tampon) const {
    if (!change_ && libelles_.empty()) return texte;
    if (change_)
        ConvertirMarqueurs(texte, tampon);
    else
        tampon = texte;
    if (!libelles_.empty()) ConvertirLibelles(tampon);
    return tampon;
}

namespace {

/// Takes the word behind `marqueur` out of the first line, with the blank behind it; `mots` are
/// its words where they may hold blanks. Answers where it stood, 0 when there was none.
std::size_t RetirerMot(std::string& texte, char marqueur, std::string_view mots) {
    const std::size_t finLigne = std::min(texte.find('\r'), texte.size());
    const std::size_t debut = texte.find(marqueur);
    if (debut >= finLigne) return 0;
    std::size_t fin = std::min(texte.find_first_of(" \r\t", debut), texte.size());
    if (std::string_view{texte}.substr(debut + 1).starts_with(mots))
        fin = std::max(fin, debut + 1 + mots.size());
    if (fin < texte.size() && texte[fin] == ' ') ++fin;
    texte.erase(debut, fin - debut);
    return debut;
}

void PoserMot(std::string& texte, std::size_t ou, std::string_view mot) {
    std::string jeton{mot};
    if (ou < texte.size() && texte[ou] != '\r') jeton += ' ';
    texte.insert(ou, jeton);
}

}  // namespace

std::string NomsLgr::Adapter(std::string_view texte, std::string_view nomFamille,
                             std::string_view prenoms) const {
    std::string adapte{texte};
    if (prenom) {
        const std::string_view nets = SansBlancs(prenoms);
        const std::size_t ou = RetirerMot(adapte, marqueur::Prenom, nets);
        const std::string mot = prenomUnique ? std::string{nets} : BlancsEnPoints(prenoms);
        if (!mot.empty()) PoserMot(adapte, ou, marqueur::Prenom + mot);
    }
    if (nom) {
        const std::size_t ou = RetirerMot(adapte, marqueur::Nom, {});
        const std::string cle = CleNom(nomFamille, regles);
        if (!cle.empty()) PoserMot(adapte, ou, marqueur::Nom + cle);
    }
    return adapte;
}

}  // namespace dorvane::interchange
