#pragma once

#include <QDialog>

#include "values/Numeros.h"
#include "windows/FenetreFille.h"

namespace dorvane::windows {

/// All documents of the base by title.
class FrmLstImage final : public FenetreFille {
public:
    FrmLstImage(shell::Session& session, QWidget* parent);
    ~FrmLstImage() override;

    /// Runs the list as a chooser, in which a new document can be made; 0 when the user gives up.
    [[nodiscard]] static NoDocument Choisir(shell::Session& session, QWidget* parent);
};

/// Opens what a document names in the program that the desktop has for it; tells when there is
/// nothing to open.
void OuvrirDocument(shell::Session& session, NoDocument document);

}  // namespace dorvane::windows
