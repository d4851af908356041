#include "interchange/lgr/LireLgr.h"

#include "shell/Parametres.h"
#include "values/Comparaison.h"
#include "values/Texte1252.h"

#include <algorithm>

namespace dorvane::interchange {
namespace {

constexpr std::string_view Retour = "\r\n";
constexpr std::string_view MarqueUtf8 = "\xEF\xBB\xBF";
constexpr std::size_t MaxPremiereLigne = 1000;
constexpr std::uint32_t Pas = 100;  ///< records between two looks at the cancel button

/// The number that a line begins with; 0 for none and for a negative one.
std::uint32_t Numero(std::string_view ligne) {
    return static_cast<std::uint32_t>(std::max(0, shell::NombreIndulgent(ligne)));
}

/// Any line ends as CR LF.
std::string EnCrLf(std::string_view octets) {
    std::string sortie;
    sortie.reserve(octets.size() + octets.size() / 16);
    for (std::size_t i = 0; i < octets.size(); ++i) {
        const char c = octets[i];
        if (c != '\r' && c != '\n') {
            sortie += c;
            continue;
        }
        sortie += Retour;
        const char suite = i + 1 < octets.size() ? octets[i + 1] : c;
        if (suite != c && (suite == '\r' || suite == '\n')) ++i;
    }
    return sortie;
}

bool Preparer(std::string& octets, PreparationLgr& preparation) {
    if (octets.starts_with(MarqueUtf8)) {
        const TexteRecu recu = Utf8VersTexte(std::string_view{octets}.substr(MarqueUtf8.size()));
        preparation.perdus = recu.remplaces;
        octets = recu.octets;
    }
    // Records end their fields with bytes 0: none may come from outside.
    if (octets.find('\0') != std::string::npos) {
        preparation.octetsNuls = static_cast<std::size_t>(std::ranges::count(octets, '\0'));
        std::ranges::replace(octets, '\0', ' ');
    }
    // The end of the first line tells how all lines end.
    const std::size_t fin = octets.find_first_of(Retour);
    if (fin >= MaxPremiereLigne) return false;
    if (!std::string_view{octets}.substr(fin).starts_with(Retour)) octets = EnCrLf(octets);
    return true;
}

/// The lines of the file, one after the other.
class Lignes {
public:
    explicit Lignes(std::string_view octets) : octets_{octets} {}

    /// False at the end of the file.
    bool Lire(std::string_view& ligne) {
        if (ou_ >= octets_.size()) return false;
        debut_ = ou_;
        const std::size_t fin = octets_.find(Retour, ou_);
        ligne = octets_.substr(ou_, fin - ou_);
        ou_ = fin == std::string_view::npos ? octets_.size() : fin + Retour.size();
        ++numero_;
        return true;
    }
    /// The next line, empty at the end of the file.
    std::string_view Valeur() {
        std::string_view ligne;
        return Lire(ligne) ? ligne : std::string_view{};
    }
    /// All lines up to one that is "#", as they stand.
    std::string_view Texte() {
        const std::size_t debut = ou_;
        std::size_t fin = debut;
        std::string_view ligne;
        while (Lire(ligne)) {
            if (ligne == "#") break;
            fin = debut_ + ligne.size();
        }
        return octets_.substr(std::min(debut, octets_.size()), fin - debut);
    }
    /// The line read last will be read again.
    void Rendre() {
        ou_ = debut_;
        --numero_;
    }
    [[nodiscard]] std::uint32_t NoLigne() const { return numero_; }
    [[nodiscard]] std::size_t Place() const { return ou_; }
    [[nodiscard]] std::size_t Taille() const { return octets_.size(); }

private:
    std::string_view octets_;
    std::size_t ou_ = 0;
    std::size_t debut_ = 0;
    std::uint32_t numero_ = 0;
};

/// Fills the content, one section after the other.
class Lecteur {
public:
    Lecteur(std::string_view octets, ContenuLgr& contenu, const AvancerLgr& avancer)
        : lignes_{octets}, contenu_{contenu}, avancer_{avancer} {}

    [[nodiscard]] LectureLgr Lire() {
        contenu_.version = EnMajuscules(SansBlancs(lignes_.Valeur()));
        if (!contenu_.version.starts_with("[DORVANE VERSION")) return LectureLgr::PasUnEchange;
        std::string_view ligne;
        while (!abandon_ && !contenu_.complet && lignes_.Lire(ligne))
            LireSection(SansBlancs(ligne));
        contenu_.lignes = lignes_.NoLigne();
        return abandon_ ? LectureLgr::Abandonnee : LectureLgr::Faite;
    }

private:
    void LireSection(std::string_view nom) {
        if (nom == "[FIN]") contenu_.complet = true;
        if (nom == "[PARAMETRES]") LireValeurs("[FIN PARAMETRES]", contenu_.parametres);
        if (nom == "[INI]") LireValeurs("[FIN INI]", contenu_.reglages);
        if (nom == "[DESCRIPTION]") contenu_.description = Numero(lignes_.Valeur());
        if (nom == "[MOTS CLES]") LireMotsCles();
        if (nom == "[DONNEES INDIVIDUS]")
            LireSlots("[FIN DONNEES INDIVIDUS]", contenu_.slotsIndividu);
        if (nom == "[DONNEES MARIAGES]") LireSlots("[FIN DONNEES MARIAGES]", contenu_.slotsMariage);
        if (nom == "[INDIVIDUS]") LireRecords("[FIN INDIVIDUS]", &Lecteur::LireIndividu);
        if (nom == "[MARIAGES]") LireRecords("[FIN MARIAGES]", &Lecteur::LireUnion);
        if (nom == "[IMAGES]") LireRecords("[FIN IMAGES]", &Lecteur::LireDocument);
        if (nom == "[EVENEMENTS]") LireRecords("[FIN EVENEMENTS]", &Lecteur::LireEvenement);
        if (nom == "[INDEX]") LireIndex();
    }

    void LireValeurs(std::string_view fin, std::vector<std::string_view>& valeurs) {
        std::string_view ligne;
        while (lignes_.Lire(ligne) && SansBlancs(ligne) != fin)
            valeurs.push_back(ligne);
    }

    // The marker may be any character, a label any text: only the place of a line tells them
    // apart from the end.
    void LireMotsCles() {
        std::string_view ligne;
        while (lignes_.Lire(ligne) && SansBlancs(ligne) != "[FIN MOTS CLES]") {
            const std::string_view libelle = lignes_.Valeur();
            if (!ligne.empty()) contenu_.motsCles.push_back({ligne.front(), libelle});
        }
    }

    void LireSlots(std::string_view fin, std::vector<SlotLgr>& slots) {
        contenu_.aSlots = true;
        std::string_view ligne;
        while (lignes_.Lire(ligne) && SansBlancs(ligne) != fin) {
            const std::string_view drapeau = lignes_.Valeur();
            if (!ligne.empty()) slots.push_back({ligne.front(), drapeau == "1" ? '1' : ' '});
        }
    }

    void LireIndex() {
        contenu_.aIndex = true;
        std::string_view ligne;
        while (lignes_.Lire(ligne) && SansBlancs(ligne) != "[FIN INDEX]")
            if (!ligne.empty()) contenu_.index += ligne.front();
    }

    /// A record begins with a number. Lines "#" in between end records of older versions; a line
    /// with a bracket begins another section: the end of this one is missing.
    void LireRecords(std::string_view fin, void (Lecteur::*lire)(std::string_view)) {
        std::string_view ligne;
        for (std::uint32_t lus = 1; lignes_.Lire(ligne); ++lus) {
            const std::string_view nette = SansBlancs(ligne);
            if (nette == fin) return;
            if (nette.starts_with('[')) {
                lignes_.Rendre();
                return;
            }
            if (nette.empty() || nette == "#") continue;
            (this->*lire)(ligne);
            if (lus % Pas == 0 && !Avancer()) return;
        }
    }

    bool Avancer() {
        abandon_ = !avancer_(static_cast<std::uint32_t>(lignes_.Place() / 1024),
                             static_cast<std::uint32_t>(lignes_.Taille() / 1024 + 1));
        return !abandon_;
    }

    TrancheLgr LireNumeros() {
        const auto debut = static_cast<std::uint32_t>(contenu_.numeros.size());
        std::string_view ligne;
        while (lignes_.Lire(ligne) && ligne != "#")
            if (const std::uint32_t numero = Numero(ligne); numero != 0)
                contenu_.numeros.push_back(numero);
        return {debut, static_cast<std::uint32_t>(contenu_.numeros.size()) - debut};
    }

    void LireIndividu(std::string_view premiere) {
        IndividuLgr individu;
        individu.ligne = lignes_.NoLigne();
        individu.numero = Numero(premiere);
        individu.nom = lignes_.Valeur();
        individu.sexe = SansBlancs(lignes_.Valeur());
        individu.lieuNaissance = lignes_.Valeur();
        individu.lieuDeces = lignes_.Valeur();
        individu.pere = Numero(lignes_.Valeur());
        individu.mere = Numero(lignes_.Valeur());
        individu.texte = lignes_.Texte();
        if (contenu_.AvecDocuments()) individu.documents = LireNumeros();
        if (contenu_.AvecListes()) LireListes(individu);
        contenu_.individus.push_back(individu);
    }

    /// The links, the unions and the events of a person, up to the end of the record. Parts may
    /// follow one another in any order, each in one run.
    void LireListes(IndividuLgr& individu) {
        enum class Partie { Liens, Unions, Evenements } partie = Partie::Liens;
        const auto depart = [](const auto& rang) {
            return TrancheLgr{static_cast<std::uint32_t>(rang.size()), 0};
        };
        individu.liens = depart(contenu_.renvois);
        individu.unions = depart(contenu_.numeros);
        std::string_view ligne;
        while (lignes_.Lire(ligne) && ligne != "#") {
            if (ligne == "{Mariages}") {
                partie = Partie::Unions;
                individu.unions = depart(contenu_.numeros);
            } else if (ligne == "{Evénements}"_1252) {
                partie = Partie::Evenements;
                individu.evenements = depart(contenu_.renvois);
            } else if (partie == Partie::Unions) {
                contenu_.numeros.push_back(Numero(ligne));
                ++individu.unions.nombre;
            } else if (partie == Partie::Evenements) {
                const std::size_t place = ligne.find(';');
                contenu_.renvois.push_back(
                    {Numero(ligne.substr(0, place)), place == std::string_view::npos
                                                         ? std::string_view{}
                                                         : ligne.substr(place + 1)});
                ++individu.evenements.nombre;
            } else {
                const std::uint32_t autre = Numero(ligne);
                contenu_.renvois.push_back({autre, lignes_.Valeur()});
                ++individu.liens.nombre;
            }
        }
    }

    void LireUnion(std::string_view premiere) {
        UnionLgr lue;
        lue.ligne = lignes_.NoLigne();
        lue.epoux = Numero(premiere);
        lue.epouse = Numero(lignes_.Valeur());
        lue.date = lignes_.Valeur();
        lue.lieu = lignes_.Valeur();
        if (contenu_.AvecListes()) lue.texte = lignes_.Texte();
        contenu_.unions.push_back(lue);
    }

    void LireDocument(std::string_view premiere) {
        DocumentLgr lu;
        lu.ligne = lignes_.NoLigne();
        lu.numero = Numero(premiere);
        lu.titre = lignes_.Valeur();
        lu.fichier = lignes_.Valeur();
        lu.texte = lignes_.Texte();
        contenu_.documents.push_back(lu);
    }

    /// Numbers between ";" on one line.
    TrancheLgr CouperNumeros(std::string_view ligne) {
        const auto debut = static_cast<std::uint32_t>(contenu_.numeros.size());
        while (!ligne.empty()) {
            const std::size_t place = ligne.find(';');
            if (const std::uint32_t numero = Numero(ligne.substr(0, place)); numero != 0)
                contenu_.numeros.push_back(numero);
            ligne.remove_prefix(place == std::string_view::npos ? ligne.size() : place + 1);
        }
        return {debut, static_cast<std::uint32_t>(contenu_.numeros.size()) - debut};
    }

    void LireEvenement(std::string_view premiere) {
        EvenementLgr lu;
        lu.ligne = lignes_.NoLigne();
        lu.numero = Numero(premiere);
        lu.date = SansBlancs(lignes_.Valeur());
        lu.lieu = lignes_.Valeur();
        lu.type = lignes_.Valeur();
        lu.titre = lignes_.Valeur();
        lu.personnes = CouperNumeros(lignes_.Valeur());
        lu.documents = CouperNumeros(lignes_.Valeur());
        lu.texte = lignes_.Texte();
        contenu_.evenements.push_back(lu);
    }

    Lignes lignes_;
    ContenuLgr& contenu_;
    const AvancerLgr& avancer_;
    bool abandon_ = false;
};

}  // namespace

LectureLgr LireLgr(std::string& octets, ContenuLgr& contenu, PreparationLgr& preparation,
                   const AvancerLgr& avancer) {
    if (!Preparer(octets, preparation)) return LectureLgr::PasUnEchange;
    return Lecteur{octets, contenu, avancer}.Lire();
}

}  // namespace dorvane::interchange
