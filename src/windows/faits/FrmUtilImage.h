#pragma once

#include <QDialog>

#include "records/FicheDocument.h"
#include "windows/controles/FenetreFille.h"

#include <memory>

namespace Ui {
class FrmUtilImage;
}

namespace dorvane::windows {

class ListeFiltree;

/// Where one document is used: persons, then events. Modal: shown by `exec`.
class FrmUtilImage final : public FenetreFille {
    Q_OBJECT

public:
    FrmUtilImage(shell::Session& session, NoDocument document, QWidget* parent);
    ~FrmUtilImage() override;

    void Traduire() override;

private:
    class Modele;

    void Recharger() override;
    void Aller();
    void OuvrirFiche();
    void PoserBoutons();

    std::unique_ptr<Ui::FrmUtilImage> ui_;
    NoDocument document_;
    Modele* modele_;
    ListeFiltree* liste_;
};

}  // namespace dorvane::windows
