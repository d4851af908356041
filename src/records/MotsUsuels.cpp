#include "records/MotsUsuels.h"

#include "messages/Dorvane.h"
#include "records/Questions.h"
#include "shell/Libelles.h"
#include "values/Comparaison.h"
#include "values/Texte1252.h"

#include <algorithm>

namespace dorvane::records {

namespace {

constexpr std::string_view Liste = "Liste Rubriques";

std::string SectionDe(const shell::Session& session, std::string_view rubrique) {
    return "Rubrique " + TexteVersUtf8(shell::TagDeLibelle(session.catalogue, rubrique));
}

std::vector<std::string> Libelles(const shell::Session& session, std::string_view section) {
    std::vector<std::string> mots = session.parametres.Mots(section);
    for (std::string& mot : mots)
        mot = shell::LibelleDeTag(session.catalogue, mot);
    return mots;
}

bool Contient(const std::vector<std::string>& mots, std::string_view mot) {
    return std::ranges::find(mots, mot) != mots.end();
}

/// A key of the settings: something, and nothing that a line could not show.
bool EstAcceptable(std::string_view mot) {
    return !mot.empty() && std::ranges::none_of(mot, [](char octet) {
        return static_cast<unsigned char>(octet) < ' ';
    });
}

/// The settings could not be written: they are as they were in memory, and the user knows.
bool Dire(shell::Session& session, bool ecrit) {
    if (!ecrit) session.dialogue.Informer(shell::Msg(message::ReglagesNonEnregistres));
    return ecrit;
}

}  // namespace

std::vector<std::string> ListerRubriques(const shell::Session& session) {
    return Libelles(session, Liste);
}

std::vector<std::string> ListerMotsUsuels(const shell::Session& session,
                                          std::string_view rubrique) {
    return Libelles(session, SectionDe(session, rubrique));
}

bool AjouterMotUsuel(shell::Session& session, std::string_view rubrique, std::string_view mot) {
    mot = SansBlancs(mot);
    if (!EstAcceptable(mot) || !Contient(ListerRubriques(session), rubrique) ||
        Contient(ListerMotsUsuels(session, rubrique), mot))
        return false;
    return Dire(session,
                session.parametres.AjouterMot(SectionDe(session, rubrique),
                                              shell::TagDeLibelle(session.catalogue, mot)));
}

bool SupprimerMotUsuel(shell::Session& session, std::string_view rubrique, std::string_view mot) {
    if (!Contient(ListerMotsUsuels(session, rubrique), mot) ||
        !ConfirmerRetrait(session, shell::Msg(message::ConfirmerSupprimerMotUsuel, mot, rubrique)))
        return false;
    return Dire(session,
                session.parametres.SupprimerMot(SectionDe(session, rubrique),
                                                shell::TagDeLibelle(session.catalogue, mot)));
}

bool AjouterRubrique(shell::Session& session, std::string_view rubrique) {
    rubrique = SansBlancs(rubrique);
    if (!EstAcceptable(rubrique) || Contient(ListerRubriques(session), rubrique)) return false;
    // The section exists with its first word; the list alone names a rubrique without words.
    return Dire(session, session.parametres.AjouterMot(
                             Liste, shell::TagDeLibelle(session.catalogue, rubrique), "0"));
}

bool SupprimerRubrique(shell::Session& session, std::string_view rubrique) {
    if (!Contient(ListerRubriques(session), rubrique)) return false;
    const std::size_t mots = ListerMotsUsuels(session, rubrique).size();
    if (!ConfirmerRetrait(session, shell::Msg(message::ConfirmerSupprimerRubrique, rubrique,
                                              std::to_string(mots))))
        return false;
    session.parametres.magasin.SupprimerSection(SectionDe(session, rubrique));
    return Dire(session, session.parametres.SupprimerMot(
                             Liste, shell::TagDeLibelle(session.catalogue, rubrique)));
}

}  // namespace dorvane::records
