#include "records/NomsAffiches.h"

#include "messages/Messages.h"
#include "records/Famille.h"
#include "shell/Numerotation.h"
#include "storage/Base.h"
#include "values/Comparaison.h"
#include "values/FormesNom.h"
#include "values/SortesEvenement.h"

namespace dorvane::records {

namespace {

bool Existe(const shell::Session& session, NoOrdre n) {
    return session.base && n && n.valeur <= session.base->entete.DernierIndividu;
}

/// The number of a person for one `De Cujus`, in its brackets.
void AjouterNumero(shell::Session& session, NoOrdre n, int k, const SortieValeur& sortie) {
    const shell::DeCujus& cujus = session.deCujus[static_cast<std::size_t>(k - 1)];
    if (cujus.perime) shell::NumeroterDeCujus(session, k);
    const std::string numero = cujus.NumeroDe(n);
    if (numero.empty()) return;
    std::string texte{k == 1 ? '[' : '{'};
    texte.append(numero).push_back(k == 1 ? ']' : '}');
    sortie(texte);
}

/// What a keyword says of a person: the place or the plain word, or the date of a dated one that
/// has no place. `tag` is the label of the keyword as stored; empty when it is not declared.
std::string ValeurMotCle(shell::Session& session, NoOrdre n, std::string_view tag) {
    if (!Existe(session, n) || tag.empty()) return {};
    storage::Base& base = *session.base;
    NoMotCle trouve{};
    for (std::uint32_t k = 1; k <= base.motsCles.Nombre() && !trouve; ++k)
        if (base.motsCles.LibelleType(NoMotCle{k}).libelle == tag) trouve = NoMotCle{k};
    if (!trouve) return {};

    const char symbole = base.motsCles.LibelleType(trouve).symbole;
    const storage::Slots& slots = base.entete.SlotsIndividu;
    for (std::size_t i = 0; i < storage::NbSlots(slots); ++i) {
        if (slots[i].symbole != symbole) continue;
        const storage::TableSlots lus = storage::SlotsDe(base, n);
        if (i >= lus.size()) return {};
        return lus[i].lieu.empty() ? DateAffichee(session, lus[i].jourMois, lus[i].annee)
                                   : lus[i].lieu;
    }
    return storage::LireLieu(base.R_TEXTE.LireTexte(n), symbole);
}

/// What a token of the template stands for.
void ValeursDe(shell::Session& session, NoOrdre n, std::string_view jeton,
               const SortieValeur& sortie) {
    storage::Base& base = *session.base;
    const auto nomDuParent = [&base, &sortie](NoOrdre parent) {
        if (parent) sortie(base.R_NOM.LireNom(parent).nom);
    };
    if (jeton == tag::Prenom) {
        sortie(base.R_NOM.LireNom(n).prenom);
    } else if (jeton == tag::Nom) {
        sortie(base.R_NOM.LireNom(n).nom);
    } else if (jeton == tag::AutresPrenoms) {
        sortie(base.R_NOM.LireNom(n).autrePrenom);
    } else if (jeton == tag::NomDuPere) {
        nomDuParent(base.R_PERE.LireCellule(n));
    } else if (jeton == tag::NomDeLaMere) {
        nomDuParent(base.R_MERE.LireCellule(n));
    } else if (jeton == tag::Numeros) {
        AjouterNumero(session, n, 1, sortie);
        AjouterNumero(session, n, 2, sortie);
    } else {
        sortie(ValeurMotCle(session, n, jeton));
    }
}

/// What life dates are made of, held for as long as they are composed.
struct VieLue {
    VieLue(storage::Base& base, NoOrdre n)
        : naissance{base.R_NAISS.LireCellule(n)}, deces{base.R_DECES.LireCellule(n)} {
        const storage::LigneNom ligne = base.R_NOM.LireNom(n);
        jourNaissance = ligne.jourMoisNaissance;
        jourDeces = ligne.jourMoisDeces;
    }
    [[nodiscard]] Vie Vue() const { return {naissance, jourNaissance, deces, jourDeces}; }

    std::string naissance;
    std::string jourNaissance;
    std::string deces;
    std::string jourDeces;
};

}  // namespace

std::string NomAffiche(shell::Session& session, NoOrdre n) {
    if (!Existe(session, n)) return {};
    return ComposerNom(session.Modele(),
                       [&session, n](std::string_view jeton, const SortieValeur& sortie) {
                           ValeursDe(session, n, jeton, sortie);
                       });
}

std::string NomEtDates(shell::Session& session, NoOrdre n) {
    if (!Existe(session, n)) return {};
    const std::string nom = NomAffiche(session, n);
    return dorvane::NomEtDates(nom, VieLue{*session.base, n}.Vue());
}

std::string DatesDeVie(shell::Session& session, NoOrdre n) {
    if (!Existe(session, n)) return {};
    return dorvane::DatesDeVie(VieLue{*session.base, n}.Vue());
}

std::string NumerosAffiches(shell::Session& session, NoOrdre n) {
    if (!Existe(session, n)) return {};
    return ComposerNom({std::string{tag::Numeros}},
                       [&session, n](std::string_view jeton, const SortieValeur& sortie) {
                           ValeursDe(session, n, jeton, sortie);
                       });
}

std::string DateAffichee(const shell::Session& session, std::string_view jourMois,
                         std::string_view annee) {
    std::string date{SansBlancs(CvtDateAffichage(jourMois, session.Mots()))};
    annee = SansBlancs(annee);
    if (!date.empty() && !annee.empty()) date.push_back(' ');
    return date.append(annee);
}

NoMessage MessageDuSexe(Sexe sexe) {
    if (sexe == Sexe::Homme) return message::SexeMasculin;
    return sexe == Sexe::Femme ? message::SexeFeminin : message::SexeIndetermine;
}

std::string DateNaissance(shell::Session& session, NoOrdre n) {
    if (!Existe(session, n)) return {};
    const VieLue vie{*session.base, n};
    return DateAffichee(session, vie.jourNaissance, vie.naissance);
}

std::string DateDeces(shell::Session& session, NoOrdre n) {
    if (!Existe(session, n)) return {};
    const VieLue vie{*session.base, n};
    return DateAffichee(session, vie.jourDeces, vie.deces);
}

std::string DateMariage(shell::Session& session, NoMariage m) {
    if (!session.base || !m || m.valeur > session.base->entete.DernierMariage) return {};
    const std::string jourMois = storage::DateMariageBrute(*session.base, m);
    return DateAffichee(session, SansBlancs(jourMois), session.base->R_DEBMAR.LireCellule(m));
}

}  // namespace dorvane::records
