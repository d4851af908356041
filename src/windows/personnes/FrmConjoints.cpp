#include "windows/personnes/FrmConjoints.h"

#include "shell/Session.h"

namespace dorvane::windows {

FrmConjoints::FrmConjoints(shell::Session& session, NoOrdre individu, QWidget* parent)
    : FenetreChoix{session,
                   QStringLiteral("FrmConjoints"),
                   {records::SorteChoix::Conjoint, individu, Sexe::Vide},
                   {},
                   parent} {}

}  // namespace dorvane::windows
