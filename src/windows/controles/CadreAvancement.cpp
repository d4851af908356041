#include "windows/controles/CadreAvancement.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QToolButton>

namespace dorvane::windows {

namespace {

constexpr int LargeurBarre = 180;
constexpr int Pas = 1000;  ///< the bar counts in thousandths: totals may pass the range of an int

}  // namespace

CadreAvancement::CadreAvancement(QWidget* parent)
    : QFrame{parent},
      texte_{new QLabel{this}},
      barre_{new QProgressBar{this}},
      annuler_{new QToolButton{this}} {
    setObjectName(QStringLiteral("CdrProgression"));
    auto* rang = new QHBoxLayout{this};
    rang->setContentsMargins(6, 0, 0, 0);
    rang->setSpacing(6);
    rang->addWidget(texte_);
    rang->addWidget(barre_);
    rang->addWidget(annuler_);
    texte_->setObjectName(QStringLiteral("LblProgression"));
    barre_->setObjectName(QStringLiteral("Progression"));
    barre_->setFixedWidth(LargeurBarre);
    annuler_->setObjectName(QStringLiteral("CmdAnnuler"));
    annuler_->setAutoRaise(false);
    connect(annuler_, &QToolButton::clicked, this, &CadreAvancement::annulationDemandee);
    hide();
}

void CadreAvancement::Montrer(const QString& texte) {
    texte_->setText(texte);
    barre_->setRange(0, 0);
    annuler_->setEnabled(true);
    show();
    Q_EMIT montre(texte, 0, 0);
}

void CadreAvancement::Texte(const QString& texte) {
    texte_->setText(texte);
    barre_->setRange(0, 0);
    Q_EMIT montre(texte, 0, 0);
}

void CadreAvancement::Avancer(std::uint32_t fait, std::uint32_t total) {
    if (total == 0) return;
    barre_->setRange(0, Pas);
    barre_->setValue(static_cast<int>(std::uint64_t{fait} * Pas / total));
    barre_->setFormat(QStringLiteral("%1/%2").arg(fait).arg(total));
    Q_EMIT montre(texte_->text(), fait, total);
}

void CadreAvancement::DireAnnulation(const QString& texte) {
    texte_->setText(texte);
    annuler_->setEnabled(false);
    Q_EMIT montre(texte, 0, 0);
}

}  // namespace dorvane::windows
