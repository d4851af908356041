#pragma once

#include <functional>
#include <iosfwd>
#include <streambuf>
#include <string>

namespace dorvane::outil {

/// What stands between a command and a terminal: control characters are shown, not sent, so that a
/// text of a base cannot drive the terminal. Tabs and line ends pass. UTF-8.
class FiltreTerminal final : public std::streambuf {
public:
    /// `sortie` outlives the object.
    explicit FiltreTerminal(std::streambuf& sortie) : sortie_{sortie} {}

protected:
    int_type overflow(int_type octet) override;
    int sync() override;

private:
    std::streambuf& sortie_;
    bool apresC2_ = false;  ///< the first byte of U+0080 to U+00BF waits
};

/// Runs `commande`, which answers an exit status, as a program of the system: standard descriptors
/// that came closed lead nowhere, a pipe that closes and a file that may not grow are refused
/// writes, memory that runs out ends in order. The answer is 3 when the system refused, the
/// standard output included.
[[nodiscard]] int ExecuterProgramme(const std::function<int()>& commande);

}  // namespace dorvane::outil
