#pragma once

#include "values/MotsDates.h"
#include "values/Texte1252.h"

#include <cstdint>
#include <map>
#include <string>
#include <string_view>

namespace dorvane::essais {

inline MotsDates MotsDeListe(const std::map<std::uint32_t, std::string_view>& textes) {
    return LireMotsDates([&textes](NoMessage numero) {
        const auto texte = textes.find(numero.valeur);
        return texte == textes.end() ? std::string() : std::string(texte->second);
    });
}

/// The words of dates of the French catalogue.
inline const MotsDates& MotsFrancais() {
    static const MotsDates Mots = MotsDeListe({
        {598, "lundi"},        {599, "mardi"},    {600, "mercredi"},      {601, "jeudi"},
        {602, "vendredi"},     {603, "samedi"},   {604, "dimanche"},      {730, "janvier"},
        {731, "février"_1252}, {732, "mars"},     {733, "avril"},         {734, "mai"},
        {735, "juin"},         {736, "juillet"},  {737, "août"_1252},     {738, "septembre"},
        {739, "octobre"},      {740, "novembre"}, {741, "décembre"_1252}, {828, "vers"},
        {830, "après"_1252},   {831, "avant"},    {832, "estimée"_1252},  {833, "entre"},
        {834, "et"},           {848, "1er"},      {871, "calculée"_1252},
    });
    return Mots;
}

/// The words of dates of the English catalogue.
inline const MotsDates& MotsAnglais() {
    static const MotsDates Mots = MotsDeListe({
        {598, "Monday"},   {599, "Tuesday"},  {600, "Wednesday"},  {601, "Thursday"},
        {602, "Friday"},   {603, "Saturday"}, {604, "Sunday"},     {730, "January"},
        {731, "February"}, {732, "March"},    {733, "April"},      {734, "May"},
        {735, "June"},     {736, "July"},     {737, "August"},     {738, "September"},
        {739, "October"},  {740, "November"}, {741, "December"},   {828, "about"},
        {830, "after"},    {831, "before"},   {832, "estimated"},  {833, "between"},
        {834, "and"},      {848, "1st"},      {871, "calculated"},
    });
    return Mots;
}

}  // namespace dorvane::essais
