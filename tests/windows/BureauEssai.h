#pragma once

#include <QDesktopServices>
#include <QObject>
#include <QStringList>
#include <QUrl>

namespace dorvane::windows {

/// What the desktop is asked to open.
class BureauEssai : public QObject {
    Q_OBJECT

public:
    BureauEssai() {
        for (const char* schema : {"file", "mailto", "http"})
            QDesktopServices::setUrlHandler(QString::fromLatin1(schema), this, "ouvrir");
    }
    ~BureauEssai() override {
        for (const char* schema : {"file", "mailto", "http"})
            QDesktopServices::unsetUrlHandler(QString::fromLatin1(schema));
    }
    QStringList ouverts;

public Q_SLOTS:
    void ouvrir(const QUrl& url) { ouverts << url.toString(); }
};

}  // namespace dorvane::windows
