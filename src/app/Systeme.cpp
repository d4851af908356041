#include "app/Systeme.h"

#include "app/Statuts.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <exception>
#include <iostream>
#include <memory>
#include <new>

namespace dorvane::outil {

namespace {

/// A file that the program opens must not become its standard output.
void OccuperDescripteurs() {
    for (int fd = STDIN_FILENO; fd <= STDERR_FILENO; ++fd)
        if (::fcntl(fd, F_GETFD) < 0 && errno == EBADF)
            static_cast<void>(::open("/dev/null", fd == STDIN_FILENO ? O_RDONLY : O_WRONLY));
}

/// A stream that goes through the filter while the object lives, when it leads to a terminal.
class Detour {
public:
    Detour(std::ostream& flux, int fd) : flux_{flux}, avant_{flux.rdbuf()} {
        if (::isatty(fd) == 0) return;
        filtre_ = std::make_unique<FiltreTerminal>(*avant_);
        flux.rdbuf(filtre_.get());
    }
    ~Detour() { flux_.rdbuf(avant_); }
    Detour(const Detour&) = delete;
    Detour& operator=(const Detour&) = delete;

private:
    std::ostream& flux_;
    std::streambuf* avant_;
    std::unique_ptr<FiltreTerminal> filtre_;
};

int ExecuterSansException(const std::function<int()>& commande) {
    try {
        return commande();
    } catch (const std::bad_alloc&) {
        std::cerr << "Mémoire insuffisante : la base est restée comme elle était.\n";
    } catch (const std::exception& erreur) {
        std::cerr << erreur.what() << '\n';
    }
    return RefusSysteme;
}

}  // namespace

std::streambuf::int_type FiltreTerminal::overflow(int_type octet) {
    if (traits_type::eq_int_type(octet, traits_type::eof())) return traits_type::not_eof(octet);
    constexpr unsigned char C2 = 0xC2;
    const auto c = static_cast<unsigned char>(traits_type::to_char_type(octet));
    std::string montre;
    if (apresC2_ && c >= 0x80 && c < 0xA0) {
        montre = "\uFFFD";
    } else {
        if (apresC2_) montre = static_cast<char>(C2);
        // The pictures of control characters stand in the order of what they show.
        if ((c < 0x20 && c != '\n' && c != '\t') || c == 0x7F) {
            montre += "\xE2\x90";
            montre += static_cast<char>(c == 0x7F ? 0xA1 : 0x80 + c);
        } else if (c != C2) {
            montre += static_cast<char>(c);
        }
    }
    apresC2_ = c == C2;
    const auto taille = static_cast<std::streamsize>(montre.size());
    return sortie_.sputn(montre.data(), taille) == taille ? octet : traits_type::eof();
}

int FiltreTerminal::sync() {
    return sortie_.pubsync();
}

int ExecuterProgramme(const std::function<int()>& commande) {
    OccuperDescripteurs();
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
    const Detour sortie{std::cout, STDOUT_FILENO};
    const Detour messages{std::cerr, STDERR_FILENO};
    const int statut = ExecuterSansException(commande);
    std::cout.flush();
    if (std::cout) return statut;
    std::cerr << "La sortie ne peut pas être écrite.\n";
    return RefusSysteme;
}

}  // namespace dorvane::outil
