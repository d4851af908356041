#include "windows/personnes/FrmPere.h"

#include "records/Filiation.h"
#include "shell/Session.h"
#include "storage/Base.h"

namespace dorvane::windows {

FrmPere::FrmPere(shell::Session& session, NoOrdre enfant, Cote cote, QWidget* parent)
    : FenetreChoix{session,
                   QStringLiteral("FrmPère"),
                   {records::SorteChoix::Parent, enfant, SexeDuCote(cote)},
                   session.base->R_NOM.NomDe(enfant),
                   parent},
      enfant_{enfant},
      cote_{cote} {}

bool FrmPere::Prendre(NoOrdre individu) {
    return records::DonnerParent(S(), enfant_, cote_, individu);
}

}  // namespace dorvane::windows
