#include "records/FicheDocument.h"

#include "messages/Dorvane.h"
#include "messages/Faits.h"
#include "messages/Messages.h"
#include "records/Incidents.h"
#include "records/Questions.h"
#include "shell/Session.h"
#include "storage/Base.h"
#include "values/Comparaison.h"

#include <algorithm>
#include <array>

namespace dorvane::records {
namespace {

using storage::Document;

constexpr std::size_t MaxFiche = 32000;  // bytes of a record, its head of 4 included
constexpr std::size_t MaxNote = 32000;
constexpr std::size_t TailleTete = 4;
constexpr std::string_view TypeCourriel = "E-Mail";
constexpr std::string_view SchemaCourriel = "mailto:";

bool CommencePar(std::string_view texte, std::string_view debut) {
    return EnMajuscules(texte.substr(0, debut.size())) == EnMajuscules(debut);
}

bool FinitPar(std::string_view texte, std::string_view fin) {
    return texte.size() >= fin.size() &&
           EnMajuscules(texte.substr(texte.size() - fin.size())) == EnMajuscules(fin);
}

bool MemeTexte(std::string_view a, std::string_view b) {
    return EnMajuscules(a) == EnMajuscules(b);
}

/// Without the outer line breaks that a reading takes away.
std::string NoteNette(std::string_view note) {
    constexpr std::string_view Retour = "\r\n";
    while (note.starts_with(Retour))
        note.remove_prefix(Retour.size());
    while (note.ends_with(Retour))
        note.remove_suffix(Retour.size());
    return std::string{note};
}

/// What would be stored.
Document Rangee(const Document& saisie) {
    const auto ranger = [](std::string_view champ) {
        std::string propre = storage::SansDiese(SansBlancs(champ));
        std::replace(propre.begin(), propre.end(), '\0', ' ');
        return propre;
    };
    return {ranger(saisie.titre), ranger(saisie.fichier), ranger(saisie.type),
            NoteNette(storage::SansDiese(saisie.note))};
}

Document Nette(const Document& document) {
    return {std::string{SansBlancs(document.titre)}, std::string{SansBlancs(document.fichier)},
            std::string{SansBlancs(document.type)}, document.note};
}

IssueDocument RefuserSaisie(shell::Session& session, const shell::Phrase& motif,
                            ChampDocument champ) {
    session.dialogue.Informer(motif);
    return {IssueDocument::Etat::Refuse, champ};
}

void RetenirType(shell::ReglagesBase& reglages, const std::string& type) {
    if (type.empty() || type.find('/') != std::string::npos || type == TypeCourriel) return;
    if (('/' + reglages.typeDocument).find('/' + type + '/') != std::string::npos) return;
    reglages.typeDocument += type + '/';
}

void Ecrire(storage::Base& base, NoDocument d, const Document& document, bool range) {
    // Out under the old title, in under the new one.
    if (range && base.R_TRI.RangDocument(d) != 0) base.R_TRI.RetirerDocument(d);
    base.R_IMAGE.EcrireDoc(d, document);
    if (range) base.R_TRI.AjouterDocument(d);
    base.marques.AffichagePerime = true;
}

SaisieDocument Lire(shell::Session& session, NoDocument document) {
    if (!session.base || !session.base->R_IMAGE.LireCellule(document)) return {};
    return {document, session.base->R_IMAGE.LireDoc(document)};
}

}  // namespace

SaisieDocument ChargerDocument(shell::Session& session, NoDocument document) {
    SaisieDocument saisie = Lire(session, document);
    DireIncident(session, storage::Incident::DocumentAbime, saisie.document.valeur);
    return saisie;
}

bool DocumentModifie(shell::Session& session, const SaisieDocument& saisie) {
    const SaisieDocument range = Lire(session, saisie.document);
    return Rangee(saisie.valeurs) != Nette(range.valeurs);
}

IssueDocument ValiderDocument(shell::Session& session, SaisieDocument& saisie) {
    using Etat = IssueDocument::Etat;
    storage::Base& base = *session.base;
    const Document document = Rangee(saisie.valeurs);
    if (document.titre.empty() && document.fichier.empty())
        return RefuserSaisie(session, shell::Msg(message::DocumentSansTitreNiFichier),
                             ChampDocument::Titre);
    // A file under another name would not be found again.
    if (saisie.valeurs.fichier.find_first_of("#\xFF") != std::string::npos)
        return RefuserSaisie(session, shell::Msg(message::NomFichierCaractereInterdit),
                             ChampDocument::Fichier);
    const std::size_t taille = TailleTete + document.titre.size() + 1 + document.fichier.size() +
                               (document.type.empty() ? 0 : document.type.size() + 1);
    if (taille > MaxFiche)
        return RefuserSaisie(session, shell::Msg(message::DocumentTropLong), ChampDocument::Titre);
    if (document.note.size() > MaxNote)
        return RefuserSaisie(session, shell::Msg(message::CommentaireTropLong),
                             ChampDocument::Note);

    const Document ancien = Nette(Lire(session, saisie.document).valeurs);
    saisie.valeurs = document;
    if (saisie.document) {
        if (document == ancien) return {Etat::Inchange, ChampDocument::Aucun};
    } else {
        if (base.entete.DernierDocument >= storage::MaxDocuments)
            return RefuserSaisie(session, shell::Msg(message::MaximumDocumentsBaseAtteint),
                                 ChampDocument::Aucun);
        saisie.document = base.NouveauDocument();
    }
    const bool nouveau = base.R_TRI.RangDocument(saisie.document) == 0;
    Ecrire(base, saisie.document, document, nouveau || document.titre != ancien.titre);
    RetenirType(session.parametres.base, document.type);
    return {Etat::Ecrit, ChampDocument::Aucun};
}

bool SupprimerDocument(shell::Session& session, NoDocument document) {
    if (!session.base || !session.base->R_IMAGE.LireCellule(document)) return false;
    storage::Base& base = *session.base;
    const UsagesDocument usages = ChercherUsages(session, document);
    const std::size_t nombre = usages.individus.size() + usages.evenements.size();
    if (!ConfirmerRetrait(session,
                          shell::Msg(message::ConfirmerSupprimerDocument,
                                     TitreAffiche(session, document), std::to_string(nombre))))
        return false;
    for (const NoOrdre individu : usages.individus) {
        const std::vector<NoDocument> liste = base.R_LSTIMG.Elements(individu);
        for (auto fois = std::count(liste.begin(), liste.end(), document); fois > 0; --fois)
            base.R_LSTIMG.ModifierListe(individu, document, storage::ActionListe::Supprimer);
    }
    for (const NoEvenement evenement : usages.evenements) {
        storage::PartiesEvt parties;
        parties.documents = base.R_EVT.Documents(evenement);
        std::erase(*parties.documents, document);
        base.R_EVT.EcrireEvt(evenement, parties);
    }
    if (base.R_TRI.RangDocument(document) != 0) base.R_TRI.RetirerDocument(document);
    base.R_IMAGE.EffacerDoc(document);
    if (base.entete.DocBase == document) PoserDocBase(session, {});
    base.marques.AffichagePerime = true;
    return true;
}

std::string TitreAffiche(const Document& document) {
    std::string titre{
        SansBlancs(std::string_view{document.titre}.substr(0, document.titre.find('/')))};
    if (!titre.empty() || !document.titre.empty()) return titre;
    const std::size_t barre = document.fichier.find_last_of("/\\");
    return barre == std::string::npos ? document.fichier : document.fichier.substr(barre + 1);
}

std::string TitreAffiche(shell::Session& session, NoDocument document) {
    return TitreAffiche(Lire(session, document).valeurs);
}

NatureDocument NatureDe(const Document& document) {
    const std::string_view fichier = SansBlancs(document.fichier);
    if (fichier.empty()) return NatureDocument::Rien;
    if (MemeTexte(document.type, TypeCourriel) || MemeTexte(document.titre, TypeCourriel) ||
        CommencePar(fichier, SchemaCourriel))
        return NatureDocument::Courriel;
    for (const std::string_view schema : {"http://", "https://", "ftp://"})
        if (CommencePar(fichier, schema)) return NatureDocument::Adresse;
    return FinitPar(fichier, ".lgo") ? NatureDocument::Lien : NatureDocument::Fichier;
}

std::string AdresseDe(const Document& document) {
    std::string fichier{SansBlancs(document.fichier)};
    switch (NatureDe(document)) {
        case NatureDocument::Adresse:
            return fichier;
        case NatureDocument::Courriel:
            return CommencePar(fichier, SchemaCourriel) ? fichier
                                                        : std::string{SchemaCourriel} + fichier;
        default:
            return {};
    }
}

std::vector<std::string> TypesDocument(const shell::Session& session) {
    std::vector<std::string> types;
    std::string_view reste = session.parametres.base.typeDocument;
    while (!reste.empty()) {
        const std::size_t barre = reste.find('/');
        const std::string type{SansBlancs(reste.substr(0, barre))};
        if (!type.empty()) types.push_back(type);
        reste.remove_prefix(barre == std::string_view::npos ? reste.size() : barre + 1);
    }
    if (std::find(types.begin(), types.end(), TypeCourriel) == types.end())
        types.emplace_back(TypeCourriel);
    return types;
}

void PoserDocBase(shell::Session& session, NoDocument document) {
    if (!session.base || session.base->entete.DocBase == document) return;
    session.base->entete.DocBase = document;
    session.base->marques.ModifBase = true;
    session.base->marques.AffichagePerime = true;
}

}  // namespace dorvane::records
