#pragma once

#include <poll.h>
#include <sys/inotify.h>
#include <unistd.h>

#include <array>
#include <cstring>
#include <filesystem>

#include <doctest/doctest.h>

namespace dorvane::doublures {

/// Hears every change of a file in a folder, from any process: a program can be struck at one of
/// them without a look at the clock.
class EcouteFichiers {
public:
    explicit EcouteFichiers(const std::filesystem::path& dossier)
        : oreille_{::inotify_init1(IN_CLOEXEC | IN_NONBLOCK)} {
        REQUIRE(oreille_ >= 0);
        REQUIRE(::inotify_add_watch(oreille_, dossier.c_str(),
                                    IN_CREATE | IN_MODIFY | IN_CLOSE_WRITE | IN_MOVE | IN_DELETE) >=
                0);
    }
    ~EcouteFichiers() { ::close(oreille_); }
    EcouteFichiers(const EcouteFichiers&) = delete;
    EcouteFichiers& operator=(const EcouteFichiers&) = delete;

    /// Waits until a file changes or something comes through `tube`, its end included.
    void Attendre(int tube) const {
        std::array<pollfd, 2> attendus{pollfd{oreille_, POLLIN, 0}, pollfd{tube, POLLIN, 0}};
        ::poll(attendus.data(), attendus.size(), -1);
    }

    /// How many changes came since the last call; equal ones that follow one another may be told
    /// as one.
    [[nodiscard]] std::size_t Compter() const {
        std::size_t nombre = 0;
        std::array<char, 65536> octets{};
        for (;;) {
            const ssize_t lus = ::read(oreille_, octets.data(), octets.size());
            if (lus <= 0) return nombre;
            for (std::size_t i = 0; i < static_cast<std::size_t>(lus); ++nombre) {
                inotify_event evenement{};
                std::memcpy(&evenement, octets.data() + i, sizeof evenement);
                i += sizeof evenement + evenement.len;
            }
        }
    }

private:
    int oreille_;
};

}  // namespace dorvane::doublures
