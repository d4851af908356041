#pragma once

#include "messages/Messages.h"
#include "values/MotsDates.h"
#include "values/Texte1252.h"

#include <map>
#include <string>
#include <string_view>

namespace dorvane::essais {

inline MotsDates MotsDeListe(const std::map<NoMessage, std::string_view>& textes) {
    return LireMotsDates([&textes](NoMessage message) {
        const auto texte = textes.find(message);
        return texte == textes.end() ? std::string() : std::string(texte->second);
    });
}

/// The words of dates of the French catalogue.
inline const MotsDates& MotsFrancais() {
    static const MotsDates Mots = MotsDeListe({
        {message::JourLundi, "lundi"},
        {message::JourMardi, "mardi"},
        {message::JourMercredi, "mercredi"},
        {message::JourJeudi, "jeudi"},
        {message::JourVendredi, "vendredi"},
        {message::JourSamedi, "samedi"},
        {message::JourDimanche, "dimanche"},
        {message::TagJAN, "janvier"},
        {message::TagFEB, "février"_1252},
        {message::TagMAR, "mars"},
        {message::TagAPR, "avril"},
        {message::TagMAY, "mai"},
        {message::TagJUN, "juin"},
        {message::TagJUL, "juillet"},
        {message::TagAUG, "août"_1252},
        {message::TagSEP, "septembre"},
        {message::TagOCT, "octobre"},
        {message::TagNOV, "novembre"},
        {message::TagDEC, "décembre"_1252},
        {message::TagABT, "vers"},
        {message::TagAFT, "après"_1252},
        {message::TagBEF, "avant"},
        {message::TagEST, "estimée"_1252},
        {message::TagBET, "entre"},
        {message::TagAND, "et"},
        {message::PremierDuMois, "1er"},
        {message::TagCAL, "calculée"_1252},
    });
    return Mots;
}

/// The words of dates of the English catalogue.
inline const MotsDates& MotsAnglais() {
    static const MotsDates Mots = MotsDeListe({
        {message::JourLundi, "Monday"},
        {message::JourMardi, "Tuesday"},
        {message::JourMercredi, "Wednesday"},
        {message::JourJeudi, "Thursday"},
        {message::JourVendredi, "Friday"},
        {message::JourSamedi, "Saturday"},
        {message::JourDimanche, "Sunday"},
        {message::TagJAN, "January"},
        {message::TagFEB, "February"},
        {message::TagMAR, "March"},
        {message::TagAPR, "April"},
        {message::TagMAY, "May"},
        {message::TagJUN, "June"},
        {message::TagJUL, "July"},
        {message::TagAUG, "August"},
        {message::TagSEP, "September"},
        {message::TagOCT, "October"},
        {message::TagNOV, "November"},
        {message::TagDEC, "December"},
        {message::TagABT, "about"},
        {message::TagAFT, "after"},
        {message::TagBEF, "before"},
        {message::TagEST, "estimated"},
        {message::TagBET, "between"},
        {message::TagAND, "and"},
        {message::PremierDuMois, "1st"},
        {message::TagCAL, "calculated"},
    });
    return Mots;
}

}  // namespace dorvane::essais
