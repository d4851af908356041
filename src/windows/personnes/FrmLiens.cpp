#include "windows/personnes/FrmLiens.h"

#include "shell/Session.h"

namespace dorvane::windows {

FrmLiens::FrmLiens(shell::Session& session, NoOrdre individu, QWidget* parent)
    : FenetreChoix{session,
                   QStringLiteral("FrmLiens"),
                   {records::SorteChoix::Lien, individu, Sexe::Vide},
                   {},
                   parent} {}

}  // namespace dorvane::windows
