#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QVBoxLayout>

#include "shell/Session.h"
#include "values/Comparaison.h"
#include "windows/controles/ChampSuivi.h"
#include "windows/controles/ListeOrdonnee.h"
#include "windows/controles/Unicode.h"
#include "windows/reglages/PagesParametre.h"

namespace dorvane::windows {

ParametreBase::ParametreBase(shell::Session& session, QWidget* parent)
    : PageParametre{session, parent},
      sansBase_{new QLabel{this}},
      corps_{new QWidget{this}},
      auteur_{new QLineEdit{this}},
      types_{new ListeOrdonnee{QStringLiteral("LstTypesDoc"), this}} {
    sansBase_->setObjectName(QStringLiteral("LblSansBase"));
    sansBase_->setWordWrap(true);
    auto* formulaire = new QFormLayout{corps_};
    formulaire->setContentsMargins(0, 0, 0, 0);
    const auto etiquette = [this](const char* nom, QWidget* pour) {
        auto* texte = new QLabel{corps_};
        texte->setObjectName(QString::fromUtf8(nom));
        texte->setBuddy(pour);
        return texte;
    };
    auteur_->setObjectName(QStringLiteral("TxtAuteur"));
    formulaire->addRow(etiquette("LblAuteur", auteur_), auteur_);
    for (std::size_t i = 0; i < adresse_.size(); ++i) {
        adresse_[i] = new QLineEdit{corps_};
        adresse_[i]->setObjectName(QStringLiteral("TxtAdresse%1").arg(i + 1));
        formulaire->addRow(i == 0 ? etiquette("LblAdresse", adresse_[i]) : nullptr, adresse_[i]);
    }
    types_->RendreModifiable();
    formulaire->addRow(etiquette("LblTypesDoc", &types_->Liste()), types_);
    auto* colonne = new QVBoxLayout{this};
    colonne->addWidget(sansBase_);
    colonne->addWidget(corps_);
    colonne->addStretch();
    connect(types_, &ListeOrdonnee::ajoutDemande, this, [this] {
        types_->Ajouter({});
        types_->Liste().editItem(types_->Liste().currentItem());
    });
}

void ParametreBase::Charger(const shell::Reglages& r) {
    sansBase_->setVisible(!S().BaseOuverte());
    corps_->setVisible(S().BaseOuverte());
    auteur_->setText(TexteVersQt(r.base.auteur));
    for (std::size_t i = 0; i < adresse_.size(); ++i) {
        adresse_[i]->setText(TexteVersQt(r.base.adresse[i]));
        adresse_[i]->setAccessibleName(QString::number(i + 1));
    }
    QList<ListeOrdonnee::Entree> entrees;
    for (const QString& type : TexteVersQt(r.base.typeDocument).split(u'/', Qt::SkipEmptyParts))
        entrees << ListeOrdonnee::Entree{type, {}};
    types_->Poser(entrees);
}

std::size_t ParametreBase::Lire(shell::Reglages& r) {
    std::size_t remplaces = 0;
    r.base.auteur = LireChamp(auteur_->text(), remplaces);
    for (std::size_t i = 0; i < adresse_.size(); ++i)
        r.base.adresse[i] = LireChamp(adresse_[i]->text(), remplaces);
    r.base.typeDocument.clear();
    for (const ListeOrdonnee::Entree& entree : types_->Entrees()) {
        // The slash parts the kinds in the settings.
        const std::string type = LireChamp(QString{entree.texte}.remove(u'/'), remplaces);
        if (!SansBlancs(type).empty()) r.base.typeDocument += std::string{SansBlancs(type)} + '/';
    }
    return remplaces;
}

}  // namespace dorvane::windows
