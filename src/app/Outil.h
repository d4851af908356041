#pragma once

namespace dorvane::outil {

/// Runs `dorvane-outil`: one verb with its options. The answer is the exit status: 0 done, 1
/// refused or findings, 2 wrong usage, 3 the file system said no.
[[nodiscard]] int Executer(int nombre, const char* const* arguments);

}  // namespace dorvane::outil
