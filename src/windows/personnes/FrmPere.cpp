#include "windows/personnes/FrmPere.h"

#include "records/Filiation.h"
#include "shell/Session.h"
#include "storage/Base.h"

namespace dorvane::windows {

FrmPere::FrmPere(shell::Session& session, NoOrdre enfant, char sexe, QWidget* parent)
    : FenetreChoix{session,
                   QStringLiteral("FrmPère"),
                   {records::SorteChoix::Parent, enfant, sexe},
                   session.base->R_NOM.NomDe(enfant),
                   parent},
      enfant_{enfant},
      sexe_{sexe} {}

bool FrmPere::Prendre(NoOrdre individu) {
    return records::DonnerParent(S(), enfant_, sexe_, individu);
}

}  // namespace dorvane::windows
