#pragma once

class QLineEdit;

namespace dorvane::windows {

/// From now on the field shows what is typed in its comparison form: capitals without accents. The
/// cursor stays where it was. To be called before other listeners are connected: they then see the
/// folded text alone.
void PlierChamp(QLineEdit& champ);

}  // namespace dorvane::windows
