#include "interchange/gedcom/SlotsImport.h"

#include "values/Comparaison.h"
#include "values/Marqueurs.h"
#include "values/Texte1252.h"

#include <algorithm>
#include <utility>

namespace dorvane::interchange {
namespace {

/// A whole day of the calendar, so that day, month and year can be joined by "/". A year of one or
/// two digits would be read as one of our own time.
bool EstJourEntier(const DateLue& date) {
    return date.annee.size() >= 3 && !date.jourMois.empty() && EstChiffre(date.jourMois.front()) &&
           !DateEntiere(date).empty();
}

}  // namespace

MarqueursImport::MarqueursImport(storage::Base& base, Occupe occupe)
    : base_{base}, occupe_{std::move(occupe)} {
    for (std::uint32_t k = 1; k <= base_.motsCles.Nombre(); ++k) {
        const storage::MotCle& type = base_.motsCles.LibelleType(NoMotCle{k});
        entrees_.push_back({type.libelle, type.symbole});
    }
}

char MarqueursImport::Marqueur(std::string_view etiquette) {
    const auto connue = std::ranges::find(entrees_, etiquette, &Entree::etiquette);
    if (connue != entrees_.end()) return connue->marqueur;
    if (base_.motsCles.Nombre() >= storage::MaxMotsCles) return '\0';
    for (const char marqueur : ListeMarqueurs()) {
        if (std::ranges::find(entrees_, marqueur, &Entree::marqueur) != entrees_.end()) continue;
        if (occupe_(marqueur)) continue;
        entrees_.push_back({std::string{etiquette}, marqueur});
        const storage::MotCle partage = base_.motsCles.LibelleType(NoMotCle{1});
        base_.motsCles.CreerType(NoMotCle{base_.motsCles.Nombre() + 1},
                                 {marqueur, std::string{etiquette}, true, partage.mots});
        return marqueur;
    }
    return '\0';
}

std::size_t SlotsImport::Trouver(std::string_view etiquette, std::string_view libelle,
                                 bool evenement) {
    for (std::size_t i = 0; i < nb_; ++i)
        if (definitions_[i].etiquette == etiquette) return i;
    if (nb_ == Nombre) return Aucun;
    const char marqueur = marqueurs_.Marqueur(libelle);
    if (marqueur == '\0') return Aucun;
    definitions_[nb_] = {std::string{etiquette}, std::string{libelle}, marqueur, evenement};
    return nb_++;
}

void SlotsImport::Vider() {
    for (std::size_t i = 0; i < nb_; ++i) {
        if (!valeurs_[i].utilise) continue;
        valeurs_[i].utilise = false;
        valeurs_[i].date.jourMois.clear();
        valeurs_[i].date.annee.clear();
        valeurs_[i].valeur.clear();
    }
}

// A line: label, blank, date, blank and marker and value, CR LF. A date is "d/m/yyyy", or words, a
// blank and the year padded to 4; the four blanks of a missing year keep the columns readable.
void SlotsImport::Composer(std::string& texte) const {
    for (std::size_t i = 0; i < nb_; ++i) {
        const Valeur& v = valeurs_[i];
        if (!v.utilise) continue;
        texte.append(definitions_[i].libelle).append(1, ' ');
        texte += v.date.jourMois;
        if (EstJourEntier(v.date)) {
            texte.append(1, '/').append(v.date.annee);
        } else {
            if (!v.date.jourMois.empty()) texte += ' ';
            texte.append(4 - std::min<std::size_t>(4, v.date.annee.size()), ' ');
            texte += v.date.annee;
        }
        if (!v.valeur.empty()) {
            texte.append(1, ' ').append(1, definitions_[i].marqueur);
            texte += BlancsEnPoints(v.valeur);
        }
        texte += "\r\n";
    }
}

storage::Slots SlotsImport::PourEnTete(const storage::Slots& initiaux) const {
    storage::Slots slots{};
    std::size_t n = 0;
    for (; n < nb_; ++n)
        slots[n] = {definitions_[n].marqueur, definitions_[n].date ? '1' : ' '};
    for (std::size_t i = 0; i < storage::NbSlots(initiaux) && n < Nombre; ++i)
        if (std::ranges::find(slots, initiaux[i].symbole, &storage::Slot::symbole) == slots.end())
            slots[n++] = initiaux[i];
    return slots;
}

}  // namespace dorvane::interchange
