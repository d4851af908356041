#include "windows/controles/NoteQt.h"

#include <QAbstractTextDocumentLayout>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

#include "windows/controles/DessinObjet.h"
#include "windows/controles/Unicode.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <string_view>

namespace dorvane::windows {

namespace {

constexpr int TypeObjet = QTextFormat::UserObject + 1;
constexpr int ProprieteReste = QTextFormat::UserProperty + 1;
constexpr int ProprieteObjet = QTextFormat::UserProperty + 2;
constexpr QChar Remplacement{QChar::ObjectReplacementCharacter};

/// The number behind `mot` in a run of control words.
std::optional<int> NombreDe(std::string_view mots, std::string_view mot) {
    const std::string cherche = '\\' + std::string{mot};
    for (std::size_t i = mots.find(cherche); i != std::string_view::npos;
         i = mots.find(cherche, i + 1)) {
        const std::string_view chiffres = mots.substr(i + cherche.size());
        int nombre = 0;
        const auto fin =
            std::from_chars(chiffres.data(), chiffres.data() + chiffres.size(), nombre);
        if (fin.ec == std::errc{}) return nombre;
    }
    return std::nullopt;
}

/// The character that an object written by `ObjetUnicode` stands for.
std::optional<QChar> CaractereDe(const std::string& objet) {
    const std::optional<int> nombre = NombreDe(objet, "u");
    if (!nombre || objet != ObjetUnicode(*nombre)) return std::nullopt;
    return QChar{static_cast<char16_t>(*nombre & 0xFFFF)};
}

QByteArray Octets(const std::string& texte) {
    return QByteArray::fromStdString(texte);
}

QTextCharFormat FormatDe(const StyleCaracteres& style) {
    QTextCharFormat format;
    if (style.gras) format.setFontWeight(QFont::Bold);
    if (style.italique) format.setFontItalic(true);
    if (style.souligne) format.setFontUnderline(true);
    if (style.reste.empty()) return format;
    format.setProperty(ProprieteReste, Octets(style.reste));
    // Half points; what is out of reason is not shown.
    if (const auto taille = NombreDe(style.reste, "fs"); taille && *taille >= 8 && *taille <= 144)
        format.setFontPointSize(*taille / 2.0);
    if (style.reste.find("\\strike") != std::string::npos) format.setFontStrikeOut(true);
    return format;
}

StyleCaracteres StyleDe(const QTextCharFormat& format) {
    return {format.fontWeight() > QFont::Normal, format.fontUnderline(), format.fontItalic(),
            format.property(ProprieteReste).toByteArray().toStdString()};
}

QTextBlockFormat FormatDe(const Paragraphe& paragraphe) {
    QTextBlockFormat format;
    switch (paragraphe.alignement) {
        case Alignement::Gauche:
            break;
        case Alignement::Centre:
            format.setAlignment(Qt::AlignHCenter);
            break;
        case Alignement::Droite:
            format.setAlignment(Qt::AlignRight);
            break;
        case Alignement::Justifie:
            format.setAlignment(Qt::AlignJustify);
            break;
    }
    if (!paragraphe.reste.empty()) format.setProperty(ProprieteReste, Octets(paragraphe.reste));
    return format;
}

Alignement AlignementDe(const QTextBlockFormat& format) {
    const Qt::Alignment alignement = format.alignment();
    if (alignement & Qt::AlignHCenter) return Alignement::Centre;
    if (alignement & Qt::AlignRight) return Alignement::Droite;
    if (alignement & Qt::AlignJustify) return Alignement::Justifie;
    return Alignement::Gauche;
}

void PreparerObjets(QTextDocument& document) {
    QAbstractTextDocumentLayout* mise = document.documentLayout();
    if (mise->handlerForObject(TypeObjet) == nullptr)
        mise->registerHandler(TypeObjet, new DessinObjet{mise});
}

void InsererTroncon(QTextCursor& curseur, const Troncon& troncon) {
    QTextCharFormat format = FormatDe(troncon.style);
    if (troncon.objet.empty()) {
        // A break inside a paragraph has a character of its own in Qt.
        curseur.insertText(TexteVersQt(troncon.texte).replace(u'\v', QChar{QChar::LineSeparator}),
                           format);
    } else if (const auto caractere = CaractereDe(troncon.objet)) {
        curseur.insertText(QString{*caractere}, format);
    } else {
        format.setObjectType(TypeObjet);
        format.setProperty(ProprieteObjet, Octets(troncon.objet));
        format.setProperty(DessinObjet::Texte, TexteVersQt(troncon.texte));
        curseur.insertText(QString{Remplacement}, format);
    }
}

/// Takes a document apart run by run.
class Lecteur {
public:
    explicit Lecteur(NoteLue& lue) : lue_{lue} {}

    void CommencerParagraphe(const QTextBlockFormat& format) {
        lue_.note.paragraphes.push_back(
            {AlignementDe(format),
             format.property(ProprieteReste).toByteArray().toStdString(),
             {}});
    }

    void Ajouter(const QString& texte, const QTextCharFormat& format) {
        const StyleCaracteres style = StyleDe(format);
        const QString joint = texte.normalized(QString::NormalizationForm_C);
        for (const QChar caractere : joint) {
            if (caractere == Remplacement) {
                if (format.hasProperty(ProprieteObjet)) Courant().push_back(ObjetDe(format, style));
                continue;
            }
            const int octet = caractere == QChar::LineSeparator ? '\v'
                              : caractere == QChar::Nbsp        ? 0xA0
                                                         : ChercherOctet(caractere.unicode());
            if (octet >= 0)
                AjouterOctet(static_cast<char>(octet), style);
            else
                Courant().push_back({style, "?", ObjetUnicode(caractere.unicode())});
        }
    }

    /// A note without formatting has no way to write what the code page lacks.
    void Terminer() {
        if (lue_.note.paragraphes.empty()) lue_.note.paragraphes.emplace_back();
        NoteRiche simple = lue_.note;
        std::size_t remplaces = 0;
        for (Paragraphe& paragraphe : simple.paragraphes)
            for (Troncon& troncon : paragraphe.troncons) {
                if (!CaractereDe(troncon.objet)) continue;
                troncon.objet.clear();
                ++remplaces;
            }
        if (!simple.EstSimple()) return;
        lue_.note = std::move(simple);
        lue_.remplaces = remplaces;
    }

private:
    std::vector<Troncon>& Courant() {
        if (lue_.note.paragraphes.empty()) lue_.note.paragraphes.emplace_back();
        return lue_.note.paragraphes.back().troncons;
    }

    static Troncon ObjetDe(const QTextCharFormat& format, const StyleCaracteres& style) {
        return {style, QtVersTexte(format.stringProperty(DessinObjet::Texte)).octets,
                format.property(ProprieteObjet).toByteArray().toStdString()};
    }

    void AjouterOctet(char octet, const StyleCaracteres& style) {
        std::vector<Troncon>& troncons = Courant();
        if (troncons.empty() || !troncons.back().objet.empty() || troncons.back().style != style)
            troncons.push_back({style, {}, {}});
        troncons.back().texte += octet;
    }

    NoteLue& lue_;
};

}  // namespace

void InsererNote(QTextCursor& curseur, const NoteRiche& note) {
    PreparerObjets(*curseur.document());
    curseur.beginEditBlock();
    curseur.removeSelectedText();
    bool premier = true;
    for (const Paragraphe& paragraphe : note.paragraphes) {
        if (!premier)
            curseur.insertBlock(FormatDe(paragraphe), QTextCharFormat{});
        else if (curseur.atBlockStart() || paragraphe.alignement != Alignement::Gauche)
            curseur.setBlockFormat(FormatDe(paragraphe));
        premier = false;
        for (const Troncon& troncon : paragraphe.troncons)
            InsererTroncon(curseur, troncon);
    }
    curseur.endEditBlock();
}

void PoserNote(QTextDocument& document, const NoteRiche& note) {
    document.clear();
    QTextCursor curseur{&document};
    InsererNote(curseur, note);
    document.clearUndoRedoStacks();
    document.setModified(false);
}

NoteLue LireDocument(const QTextDocument& document, const std::string& entete, int debut, int fin) {
    NoteLue lue;
    lue.note.entete = entete;
    if (fin <= debut) {
        debut = 0;
        fin = document.characterCount();
    }
    Lecteur lecteur{lue};
    for (QTextBlock bloc = document.findBlock(debut); bloc.isValid() && bloc.position() < fin;
         bloc = bloc.next()) {
        lecteur.CommencerParagraphe(bloc.blockFormat());
        for (auto morceau = bloc.begin(); !morceau.atEnd(); ++morceau) {
            const QTextFragment fragment = morceau.fragment();
            const int de = std::max(debut, fragment.position());
            const int a = std::min(fin, fragment.position() + fragment.length());
            if (a > de)
                lecteur.Ajouter(fragment.text().mid(de - fragment.position(), a - de),
                                fragment.charFormat());
        }
    }
    lecteur.Terminer();
    return lue;
}

}  // namespace dorvane::windows
