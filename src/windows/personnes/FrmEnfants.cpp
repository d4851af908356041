#include "windows/personnes/FrmEnfants.h"

#include "shell/Session.h"
#include "storage/Base.h"

namespace dorvane::windows {

FrmEnfants::FrmEnfants(shell::Session& session, NoOrdre individu, QWidget* parent)
    : FenetreChoix{session,
                   QStringLiteral("FrmEnfants"),
                   {records::SorteChoix::Enfant, individu, Sexe::Vide},
                   session.base->R_NOM.NomDe(individu),
                   parent} {}

}  // namespace dorvane::windows
