#include "shell/Parametres.h"

#include "shell/ClesParametres.h"
#include "shell/FichierSur.h"
#include "shell/ListesInitiales.h"
#include "values/Comparaison.h"
#include "values/Texte1252.h"

#include <algorithm>

namespace dorvane::shell {

namespace {

constexpr std::string_view Defaut = "Defaut";

/// Puts the text of a key into a field of its type.
void Prendre(std::uint32_t& champ, std::string_view utf8) {
    champ = static_cast<std::uint32_t>(std::max(0, NombreIndulgent(utf8)));
}
void Prendre(int& champ, std::string_view utf8) {
    champ = std::max(0, NombreIndulgent(utf8));
}
void Prendre(bool& champ, std::string_view utf8) {
    champ = NombreIndulgent(utf8) == 1;
}
void Prendre(std::string& champ, std::string_view utf8) {
    champ = Utf8VersTexte(utf8).octets;
}
void Prendre(std::filesystem::path& champ, std::string_view utf8) {
    champ = Utf8VersChemin(utf8);
}
void Prendre(TexteUtf8 champ, std::string_view utf8) {
    champ.texte = utf8;
}
void Prendre(AvecBarre champ, std::string_view utf8) {
    if (utf8.ends_with('/')) utf8.remove_suffix(1);
    champ.texte = Utf8VersTexte(utf8).octets;
}

/// The text of a field as it is kept.
std::string Donner(std::uint32_t champ) {
    return std::to_string(champ);
}
std::string Donner(int champ) {
    return std::to_string(champ);
}
std::string Donner(bool champ) {
    return champ ? "1" : "0";
}
std::string Donner(const std::string& champ) {
    return TexteVersUtf8(champ);
}
std::string Donner(const std::filesystem::path& champ) {
    return CheminVersUtf8(champ);
}
std::string Donner(TexteUtf8 champ) {
    return champ.texte;
}
std::string Donner(AvecBarre champ) {
    return champ.texte.empty() ? std::string{} : TexteVersUtf8(champ.texte) + "/";
}

/// What was read may be junk; the program works with what it can show.
void Redresser(Affichage& affichage) {
    if (affichage.typePresentation < 1 || affichage.typePresentation > 4)
        affichage.typePresentation = 2;
    for (std::uint32_t* couleur :
         {&affichage.couleurFond, &affichage.couleurCadreHomme, &affichage.couleurCadreFemme,
          &affichage.couleurCadreIndetermine, &affichage.couleurPoliceHomme,
          &affichage.couleurPoliceFemme, &affichage.couleurPoliceIndetermine})
        *couleur &= 0xFFFFFFU;
}

void Redresser(ReglagesGeneraux& generaux) {
    Redresser(generaux.affichage);
    if (EnMajuscules(generaux.aide.extension().string()) == ".HLP")
        generaux.aide.replace_extension(".chm");
    if (!generaux.travail.has_filename() && generaux.travail.has_relative_path())
        generaux.travail = generaux.travail.parent_path();
}

/// The name template that the two keys of older versions stood for.
std::string ModeleAncien(std::string_view ini) {
    const auto lire = [ini](std::string_view cle) {
        const std::string valeur = LireIniTexte(ini, Defaut, cle).value_or("");
        return valeur.empty() ? std::string{"2"} : valeur;
    };
    const std::string ordre = lire("Affichage Nom/Prénom");
    std::string modele = ordre == "1"   ? "BIRN/FNAM/"
                         : ordre == "3" ? "NUMB/BIRN/FNAM/"
                                        : "FNAM/BIRN/";
    if (lire("Affichage tous Prénoms") == "1") modele += "OFNM/";
    return modele;
}

std::string SectionDe(const std::filesystem::path& base) {
    return CheminVersUtf8(base);
}

std::string CleHistorique(std::size_t rang) {
    return "Historique " + std::to_string(rang);
}

std::vector<std::string> ClesHistorique() {
    std::vector<std::string> cles;
    for (std::size_t i = 0; i < TailleHistorique; ++i)
        cles.push_back(CleHistorique(i));
    return cles;
}

}  // namespace

Disposition DispositionDe(int typePresentation) {
    constexpr Disposition Dispositions[] = {{2, 1}, {4, 2}, {6, 3}, {8, 4}};
    return typePresentation >= 1 && typePresentation <= 4 ? Dispositions[typePresentation - 1]
                                                          : Dispositions[1];
}

Parametres::Parametres(Lieux lieuxDuProgramme)
    : lieux{std::move(lieuxDuProgramme)}, magasin{lieux.configuration / "parametres.json"} {}

Magasin::Etat Parametres::ChargerParametres() {
    const Magasin::Etat etat = magasin.Charger();
    generaux = {};
    if (magasin.Lire(Defaut, "Langue").empty()) {
        RemplirPremiereFois();
    } else {
        LireGeneraux();
    }
    base = {};
    base.affichage = generaux.affichage;
    // A refusal shows again, and is told, when the settings are saved.
    static_cast<void>(magasin.Enregistrer());
    return etat;
}

void Parametres::LireGeneraux() {
    // A flag that an incomplete store lacks is up.
    generaux.assistant = generaux.barreMenus = generaux.barreFenetres = true;
    ParcourirGeneraux(generaux, [this](std::string_view cle, auto&& champ) {
        if (const std::optional<std::string> valeur = magasin.Chercher(Defaut, cle))
            Prendre(champ, *valeur);
    });
    if (generaux.affichageNom.empty()) generaux.affichageNom = "FNAM/BIRN/";
    if (generaux.jeuExport.empty()) generaux.jeuExport = "1";
    if (generaux.travail.empty()) {
        generaux.travail = DossierTemp();
        magasin.Ecrire(Defaut, "Travail", CheminVersUtf8(generaux.travail));
    }
    Redresser(generaux);

    for (const auto& [mot, drapeaux] : magasin.LireSection("Particule"))
        generaux.particules.push_back(FaireParticule(Utf8VersTexte(mot).octets, drapeaux));
    for (const std::string& cle : ClesHistorique()) {
        const std::filesystem::path chemin = Utf8VersChemin(magasin.Lire(Defaut, cle));
        if (chemin.empty()) break;
        if (chemin.has_filename()) generaux.historique.push_back(chemin);
    }
}

void Parametres::RemplirPremiereFois() {
    const std::string ini = LireTout(lieux.configuration / "Dorvane.ini").value_or("");
    generaux.langue = "Français";
    generaux.aide = lieux.repertoire / "Français.chm";
    generaux.travail = DossierTemp();
    generaux.fichierCommunes = lieux.repertoire / "France.lgx";
    generaux.geneanet = lieux.repertoire / "geneanet";
    generaux.icones = "0,1,2,3,4,10,99,11,12,13,14,8,99,28,29,99,15,16,99,17,18,99,22,23,24";
    generaux.ordreDate = "dd/mm/yyyy";
    generaux.jeuExport = "1";
    generaux.affichage.couleurDegrade = "Bleu";
    ParcourirGeneraux(generaux, [&ini](std::string_view cle, auto&& champ) {
        // These follow the new place of the program, and their old values name a Windows one.
        if (cle == "Langue" || cle == "Travail" || cle == "Affichage Nom") return;
        const std::optional<std::string> valeur = LireIniTexte(ini, Defaut, cle);
        if (valeur && !valeur->empty()) Prendre(champ, TexteVersUtf8(*valeur));
    });
    generaux.affichageNom = ModeleAncien(ini);
    Redresser(generaux);
    for (std::size_t i = 0; i < TailleHistorique; ++i) {
        const std::string chemin = LireIniTexte(ini, Defaut, CleHistorique(i)).value_or("");
        if (chemin.empty()) break;
        generaux.historique.push_back(Utf8VersChemin(TexteVersUtf8(chemin)));
    }
    EcrireGeneraux();
    EcrireHistorique();
    RemplirListes(ini);
}

void Parametres::RemplirListes(std::string_view ini) {
    // A section that the older file holds is taken as it is; otherwise our own list fills it.
    const auto remplir = [&](std::string_view section, auto&& liste, std::string_view valeur) {
        const auto entrees = LireSectionIni(ini, section);
        for (const auto& [cle, texte] : entrees)
            magasin.Ecrire(section, TexteVersUtf8(cle), TexteVersUtf8(texte));
        if (!entrees.empty()) return;
        for (const std::string_view mot : liste)
            magasin.Ecrire(section, TexteVersUtf8(mot), valeur);
    };
    remplir("Particule", ParticulesInitiales(), "1 1");
    generaux.particules.clear();
    for (const auto& [mot, drapeaux] : magasin.LireSection("Particule"))
        generaux.particules.push_back(FaireParticule(Utf8VersTexte(mot).octets, drapeaux));

    for (const ListeInitiale& liste : UsuelsInitiaux())
        remplir(liste.section, liste.mots, liste.section == "Liste Rubriques" ? "0" : "");
    std::vector<std::string_view> types;
    for (const EvenementInitial& evenement : EvenementsInitiaux())
        types.push_back(evenement.type);
    remplir("Liste Evénements", types, "0");
    for (const EvenementInitial& evenement : EvenementsInitiaux())
        remplir("Evénements\\" + std::string{evenement.type}, evenement.roles, "0");
    for (const std::string_view extension : ExtensionsGraphisme()) {
        const std::string valeur = LireIniTexte(ini, "Graphisme", extension).value_or("");
        if (!valeur.empty()) magasin.Ecrire("Graphisme", extension, TexteVersUtf8(valeur));
    }
}

void Parametres::EcrireGeneraux() {
    ParcourirGeneraux(generaux, [this](std::string_view cle, auto&& champ) {
        magasin.Ecrire(Defaut, cle, Donner(champ));
    });
}

bool Parametres::SauverTravail() {
    magasin.Ecrire(Defaut, "Travail", CheminVersUtf8(generaux.travail));
    return magasin.Enregistrer();
}

bool Parametres::SauverParametres() {
    EcrireGeneraux();
    std::vector<Magasin::Entree> particules;
    particules.reserve(generaux.particules.size());
    for (const Particule& particule : generaux.particules)
        particules.emplace_back(
            TexteVersUtf8(particule.mot),
            std::string{particule.prenoms ? "1 " : "0 "} + (particule.noms ? "1" : "0"));
    magasin.RemplacerSection("Particule", particules);
    return magasin.Enregistrer();
}

bool Parametres::LireParametresBase(const std::filesystem::path& chemin) {
    base = {};
    base.affichage = generaux.affichage;
    const std::string section = SectionDe(chemin);
    // Another program may have had this base open since we started.
    magasin.Relire(section);
    const bool connue = !magasin.Lire(section, "Personne en cours").empty();
    if (connue) {
        ParcourirBase(base, [this, &section](std::string_view cle, auto&& champ) {
            if (const std::optional<std::string> valeur = magasin.Chercher(section, cle))
                Prendre(champ, *valeur);
        });
    } else {
        std::filesystem::path sien = lieux.configuration / "Dorvane" / chemin.stem();
        sien += ".ini";
        const std::string textes[] = {LireTout(sien).value_or(""),
                                      LireTout(lieux.configuration / "Dorvane.ini").value_or("")};
        const std::string noms[] = {section, chemin.filename().string(), std::string{Defaut}};
        ParcourirBase(base, [&](std::string_view cle, auto&& champ) {
            for (const std::string& texte : textes)
                for (const std::string& nom : noms)
                    if (const auto valeur = LireIniTexte(texte, nom, cle);
                        valeur && !valeur->empty()) {
                        Prendre(champ, TexteVersUtf8(*valeur));
                        return;
                    }
        });
    }
    Redresser(base.affichage);
    return connue;
}

bool Parametres::SauverParametresBase(const std::filesystem::path& chemin) {
    const std::string section = SectionDe(chemin);
    ParcourirBase(base, [this, &section](std::string_view cle, auto&& champ) {
        magasin.Ecrire(section, cle, Donner(champ));
    });
    return magasin.Enregistrer();
}

bool Parametres::MemoriserHistorique(const std::filesystem::path& chemin) {
    std::vector<std::filesystem::path>& liste = generaux.historique;
    magasin.Relire(Defaut, ClesHistorique());
    liste.clear();
    for (const std::string& cle : ClesHistorique()) {
        const std::filesystem::path ancien = Utf8VersChemin(magasin.Lire(Defaut, cle));
        if (ancien.empty()) break;
        if (ancien.has_filename()) liste.push_back(ancien);
    }
    if (liste.empty() || liste.front() != chemin) {
        std::erase(liste, chemin);
        liste.insert(liste.begin(), chemin);
        if (liste.size() > TailleHistorique) liste.resize(TailleHistorique);
    }
    EcrireHistorique();
    return magasin.Enregistrer();
}

void Parametres::EcrireHistorique() {
    for (std::size_t i = 0; i < generaux.historique.size(); ++i)
        magasin.Ecrire(Defaut, CleHistorique(i), CheminVersUtf8(generaux.historique[i]));
}

std::string Parametres::Valeur(std::string_view section, std::string_view cle,
                               std::string_view defaut) const {
    const std::optional<std::string> valeur = magasin.Chercher(section, cle);
    return valeur ? Utf8VersTexte(*valeur).octets : std::string{defaut};
}

bool Parametres::SauverValeur(std::string_view section, std::string_view cle,
                              std::string_view valeur) {
    magasin.Ecrire(section, cle, TexteVersUtf8(valeur));
    return magasin.Enregistrer();
}

std::vector<std::string> Parametres::Mots(std::string_view section) const {
    std::vector<std::string> mots;
    for (const auto& [mot, valeur] : magasin.LireSection(section))
        mots.push_back(Utf8VersTexte(mot).octets);
    return mots;
}

bool Parametres::AjouterMot(std::string_view section, std::string_view mot,
                            std::string_view valeur) {
    magasin.Ecrire(section, TexteVersUtf8(mot), TexteVersUtf8(valeur));
    return magasin.Enregistrer();
}

bool Parametres::SupprimerMot(std::string_view section, std::string_view mot) {
    magasin.Supprimer(section, TexteVersUtf8(mot));
    return magasin.Enregistrer();
}

std::vector<RoleEvenement> Parametres::RolesEvenement(std::string_view type) const {
    std::vector<RoleEvenement> roles;
    for (const std::string& mot : Mots("Evénements\\" + TexteVersUtf8(type)))
        if (mot.size() > 2)
            roles.push_back({mot[0] == 'M', static_cast<Sexe>(mot[1]), mot.substr(2)});
    return roles;
}

std::vector<std::string> Parametres::ListeEvenements() const {
    return Mots("Liste Evénements");
}

}  // namespace dorvane::shell
