#pragma once

#include <QDialog>

#include "records/FicheDocument.h"
#include "windows/FenetreFille.h"

#include <filesystem>
#include <memory>

namespace Ui {
class FrmDesImage;
}

namespace dorvane::windows {

/// One document: title, file, kind, comment. Modal: shown by `exec`, which answers `Accepted` once
/// it is saved.
class FrmDesImage final : public FenetreFille {
public:
    /// `document` 0: a new one.
    FrmDesImage(shell::Session& session, NoDocument document, QWidget* parent);
    ~FrmDesImage() override;

    /// Fills a new document from a file.
    void ProposerFichier(const std::filesystem::path& fichier);

    /// The document; 0 for a new one that was given up.
    [[nodiscard]] NoDocument Document() const { return saisie_.document; }

private:
    std::unique_ptr<Ui::FrmDesImage> ui_;
    records::SaisieDocument saisie_;
};

}  // namespace dorvane::windows
