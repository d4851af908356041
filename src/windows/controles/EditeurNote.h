#pragma once

#include <QTextEdit>

#include <cstddef>
#include <string>

namespace dorvane::windows {

/// A field for a note, plain or formatted: bold, italic, underlined, aligned. What is pasted keeps
/// of its formatting what a note can hold. Ctrl+B, Ctrl+I, Ctrl+U.
class EditeurNote final : public QTextEdit {
    Q_OBJECT

public:
    explicit EditeurNote(QWidget* parent = nullptr);

    /// Shows a stored note, in code page 1252; the changes so far are forgotten.
    void Poser(const std::string& note);

    /// The note as it is stored. Bytes that were put in and not changed come back as they were.
    [[nodiscard]] std::string Note() const { return Lire().note; }

    /// The user has typed since `Poser`.
    [[nodiscard]] bool EstModifiee() const;

    /// Characters that the plain note could not hold.
    [[nodiscard]] std::size_t Remplaces() const { return Lire().remplaces; }

public Q_SLOTS:
    void basculerGras();
    void basculerItalique();
    void basculerSouligne();

protected:
    void keyPressEvent(QKeyEvent* evenement) override;
    [[nodiscard]] QMimeData* createMimeDataFromSelection() const override;
    [[nodiscard]] bool canInsertFromMimeData(const QMimeData* donnees) const override;
    void insertFromMimeData(const QMimeData* donnees) override;

private:
    struct Lue {
        std::string note;
        std::size_t remplaces = 0;
    };
    [[nodiscard]] Lue Lire() const;

    std::string posee_;
    std::string entete_;
};

}  // namespace dorvane::windows
