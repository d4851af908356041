#include "windows/controles/FrmRapport.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>

#include "windows/Essai.h"

using namespace dorvane;
using namespace dorvane::windows;

TEST_CASE_FIXTURE(FenetreEssai, "FrmRapport: the report can be copied, saved and closed") {
    Demarrer({});
    auto* fenetre =
        new FrmRapport{S(), QStringLiteral("Rapport"), QStringLiteral("Été\nfin"), &Fenetre()};
    fenetre->show();
    const auto bouton = [&](const char* nom) {
        return fenetre->findChild<QPushButton*>(QString::fromLatin1(nom));
    };
    CHECK(fenetre->findChild<QPlainTextEdit*>()->isReadOnly());
    QTest::mouseClick(bouton("CmdCopier"), Qt::LeftButton);
    CHECK(QGuiApplication::clipboard()->text() == QStringLiteral("Été\nfin"));
    RepondreFichier(dossier / "rapport");
    QTest::mouseClick(bouton("CmdEnregistrer"), Qt::LeftButton);
    CHECK(doublures::LireFichier(dossier / "rapport.txt") == "Été\nfin\n");
    RepondreFichier({});
    QTest::mouseClick(bouton("CmdEnregistrer"), Qt::LeftButton);
    const QPointer<FrmRapport> suivi{fenetre};
    QTest::mouseClick(bouton("CmdFermer"), Qt::LeftButton);
    CHECK(QTest::qWaitFor([&] { return suivi.isNull(); }, 2000));
}
