#include "shell/Catalogue.h"

#include "values/Comparaison.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <memory>

namespace dorvane::shell {

namespace {

constexpr std::uint32_t MessagesParBloc = 1000;
constexpr std::uint32_t DernierMessage = 32000;
constexpr std::size_t LongueurLue = 200;

/// An open file that closes itself.
class Descripteur {
public:
    explicit Descripteur(int no) : no_{no} {}
    ~Descripteur() { close(no_); }
    Descripteur(const Descripteur&) = delete;
    Descripteur& operator=(const Descripteur&) = delete;

    [[nodiscard]] std::size_t Lire(std::uint64_t decalage, std::span<char> octets) const {
        std::size_t lus = 0;
        while (lus < octets.size()) {
            const ssize_t n = pread(no_, octets.data() + lus, octets.size() - lus,
                                    static_cast<off_t>(decalage + lus));
            if (n <= 0) break;
            lus += static_cast<std::size_t>(n);
        }
        return lus;
    }

private:
    int no_;
};

/// The integers of a catalogue are little-endian, unlike those of a base.
std::int32_t LireEntier(std::span<const char, 4> octets) {
    std::uint32_t valeur = 0;
    for (std::size_t i = 4; i-- > 0;)
        valeur = (valeur << 8U) | static_cast<unsigned char>(octets[i]);
    return static_cast<std::int32_t>(valeur);
}

/// Fills a table from a position; what the file does not hold is 0, and so is all of it when the
/// position is none.
template <std::size_t N>
void LireTable(const Catalogue::Lecteur& lecteur, std::int32_t position,
               std::array<std::int32_t, N>& table) {
    std::array<char, 4 * N> octets{};
    if (lecteur && position > 0) {
        const std::size_t lus = lecteur(static_cast<std::uint64_t>(position) - 1, octets);
        std::fill(octets.begin() + static_cast<std::ptrdiff_t>(std::min(lus, octets.size())),
                  octets.end(), '\0');
    }
    for (std::size_t i = 0; i < N; ++i)
        table[i] = LireEntier(std::span{octets}.subspan(4 * i).template first<4>());
}

/// A name begins with a capital; numbers, and most names of files, do not.
bool CommenceParVoyelle(std::string_view valeur) {
    constexpr std::string_view Voyelles = "AEIOU\x8C\xC6";
    if (valeur.empty() || EnMinuscule(valeur[0]) == valeur[0]) return false;
    return Voyelles.find(Replie(valeur.substr(0, 1))) != std::string_view::npos;
}

/// "Descendants de " in front of "Antoinette" becomes "Descendants d'".
void Elider(std::string& texte, std::string_view valeur) {
    if (!CommenceParVoyelle(valeur)) return;
    for (const std::string_view mot : {" de ", " que "}) {
        const bool seul = texte == mot.substr(1);
        if (!seul && !texte.ends_with(mot)) continue;
        texte.replace(texte.size() - 2, 2, "'");
        return;
    }
}

/// The template with its values, in one pass: a "&2" inside the first value stays as the user wrote
/// it.
std::string Remplir(std::string_view modele, const Phrase& phrase) {
    std::string texte;
    for (std::size_t i = 0; i < modele.size(); ++i) {
        const char suivant = i + 1 < modele.size() ? modele[i + 1] : ' ';
        if (modele[i] == '&' && (suivant == '1' || suivant == '2')) {
            const std::string& valeur = suivant == '1' ? phrase.valeur : phrase.valeur2;
            Elider(texte, valeur);
            texte += valeur;
            ++i;
        } else {
            texte += modele[i];
        }
    }
    return texte;
}

}  // namespace

bool Catalogue::Ouvrir(const std::filesystem::path& chemin) {
    // Without O_NONBLOCK a pipe of that name would hold the program for ever.
    const int no = open(chemin.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    struct stat etat {};
    if (no < 0) {
        Ouvrir(Lecteur{});
        return false;
    }
    const auto fichier = std::make_shared<Descripteur>(no);
    if (fstat(no, &etat) != 0 || !S_ISREG(etat.st_mode)) {
        Ouvrir(Lecteur{});
        return false;
    }
    Ouvrir([fichier](std::uint64_t decalage, std::span<char> octets) {
        return fichier->Lire(decalage, octets);
    });
    return true;
}

void Catalogue::Ouvrir(Lecteur lecteur) {
    lecteur_ = std::move(lecteur);
    OublierMessages();
}

std::string Catalogue::Message(NoMessage no) const {
    if (!lecteur_ || !no || no.valeur > DernierMessage) return {};
    if (noBloc_ == 0) LireTable(lecteur_, 1, blocs_);

    const std::uint32_t bloc = (no.valeur - 1) / MessagesParBloc + 1;
    if (bloc != noBloc_) {
        noBloc_ = bloc;
        if (blocs_[bloc - 1] != 0) LireTable(lecteur_, blocs_[bloc - 1], messages_);
    }
    if (blocs_[bloc - 1] == 0) return {};
    return LireTexte(messages_[(no.valeur - 1) % MessagesParBloc]);
}

std::string Catalogue::LireTexte(std::int32_t position) const {
    if (position <= 0) return {};
    std::array<char, LongueurLue> octets{};
    const std::size_t lus =
        std::min(lecteur_(static_cast<std::uint64_t>(position) - 1, octets), octets.size());
    // A text whose end does not stand within what was read is no text.
    const std::string_view vue{octets.data(), lus};
    const std::size_t fin = vue.find('\0');
    return fin == std::string_view::npos ? std::string{} : std::string{vue.substr(0, fin)};
}

std::string Catalogue::Composer(const Phrase& phrase) const {
    std::string texte = phrase.no ? Remplir(Message(phrase.no), phrase) : phrase.valeur;
    if (phrase.suite) {
        if (!texte.empty()) texte += '\n';
        texte += Message(phrase.suite);
    }
    return texte;
}

void Catalogue::OublierMessages() {
    noBloc_ = 0;
}

}  // namespace dorvane::shell
