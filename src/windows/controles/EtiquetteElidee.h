#pragma once

#include <QLabel>

namespace dorvane::windows {

/// A label that takes what room there is, and ends in dots where that is too little; its tip says
/// all of it.
class EtiquetteElidee final : public QLabel {
public:
    explicit EtiquetteElidee(QWidget* parent) : QLabel{parent} {
        setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    }
    [[nodiscard]] QSize minimumSizeHint() const override { return {0, sizeHint().height()}; }

    void Dire(const QString& texte) {
        setText(texte);
        setToolTip(texte);
    }

protected:
    void paintEvent(QPaintEvent* evenement) override;
};

}  // namespace dorvane::windows
