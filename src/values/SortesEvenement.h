#pragma once

#include <array>
#include <initializer_list>
#include <string_view>

namespace dorvane {

/// The tags of kinds of events, and of the keywords of the sheet, that the program itself knows:
/// three or four letters that a base keeps in the place of words of one language.
namespace tag {
inline constexpr std::string_view Naissance = "BIRT";
inline constexpr std::string_view Bapteme = "CHR";
inline constexpr std::string_view Mariage = "MARR";
inline constexpr std::string_view Deces = "DEAT";
inline constexpr std::string_view Inhumation = "BURI";
inline constexpr std::string_view Divorce = "DIV";
inline constexpr std::string_view Contrat = "MARL";
inline constexpr std::string_view Nom = "BIRN";
inline constexpr std::string_view Prenom = "FNAM";
inline constexpr std::string_view AutresPrenoms = "OFNM";
inline constexpr std::string_view NomDuPere = "FATN";
inline constexpr std::string_view NomDeLaMere = "MOTN";
inline constexpr std::string_view Numeros = "NUMB";
inline constexpr std::string_view Profession = "OCCU";
inline constexpr std::string_view Residence = "RESI";
inline constexpr std::string_view Autre = "OTHR";
inline constexpr std::string_view Relation = "RELA";  ///< heading of the usual words for roles
}  // namespace tag

/// The tags of roles in an event that the program itself knows.
namespace role {
inline constexpr std::string_view Enfant = "CHIL";
inline constexpr std::string_view Pere = "FATH";
inline constexpr std::string_view Mere = "MOTH";
inline constexpr std::string_view Epoux = "HUSB";
inline constexpr std::string_view Epouse = "WIFE";
inline constexpr std::string_view Conjoint = "SPOU";
inline constexpr std::string_view Defunt = "DEAD";
}  // namespace role

/// What a kind of event is known for; several hold together.
enum class UsageSorte : unsigned {
    Usuelle = 1,       ///< among the usual words of a first run
    MotCle = 2,        ///< a keyword with its tag tells an event, and no other may take the tag
    Source = 4,        ///< a GEDCOM file names it as the event of a source
    Individuelle = 8,  ///< a tag of its own in the GEDCOM record of a person
    Familiale = 16     ///< a tag of its own in the GEDCOM record of a family
};

/// One kind of event.
class SorteConnue {
public:
    consteval SorteConnue(std::string_view nom, std::initializer_list<UsageSorte> usages)
        : tag{nom} {
        for (const UsageSorte usage : usages)
            usages_ |= static_cast<unsigned>(usage);
    }
    [[nodiscard]] constexpr bool A(UsageSorte usage) const {
        return (usages_ & static_cast<unsigned>(usage)) != 0;
    }

    std::string_view tag;

private:
    unsigned usages_ = 0;
};

namespace detail {

consteval auto FaireSortes() {
    using enum UsageSorte;
    return std::to_array<SorteConnue>({
        {tag::Naissance, {Usuelle, Source}},
        {tag::Inhumation, {Usuelle, MotCle, Source, Individuelle}},
        {tag::Bapteme, {Usuelle, MotCle, Source}},
        {tag::Deces, {Usuelle, Source}},
        {tag::Mariage, {Usuelle, Source}},
        {"ADOP", {Usuelle, MotCle, Source, Individuelle}},
        {"ANUL", {Usuelle, MotCle, Source, Familiale}},
        {"BARM", {Usuelle, MotCle, Source}},
        {"BASM", {Usuelle, MotCle, Source, Individuelle}},
        {"BLES", {Usuelle, MotCle, Individuelle}},
        {"CENS", {Usuelle, MotCle, Source, Individuelle, Familiale}},
        {"CONF", {Usuelle, MotCle, Source, Individuelle}},
        {"CREM", {Usuelle, MotCle, Source, Individuelle}},
        {tag::Divorce, {Usuelle, MotCle, Source, Familiale}},
        {"DIVF", {Usuelle, MotCle, Source, Familiale}},
        {"EMIG", {Usuelle, MotCle, Source, Individuelle}},
        {"ENDL", {Usuelle, MotCle}},
        {"ENGA", {Usuelle, MotCle, Source, Familiale}},
        {"FCOM", {Usuelle, MotCle, Source, Individuelle}},
        {"IMMI", {Usuelle, MotCle, Source, Individuelle}},
        {"MARB", {Usuelle, MotCle, Source, Familiale}},
        {"MARC", {Usuelle, MotCle, Source, Familiale}},
        {tag::Contrat, {Usuelle, MotCle, Source, Familiale}},
        {"NATU", {Usuelle, MotCle, Source, Individuelle}},
        {"ORDN", {Usuelle, MotCle, Source, Individuelle}},
        {"PROB", {Usuelle, Source, Individuelle}},
        {"RETI", {Usuelle, MotCle, Source, Individuelle}},
        {"WILL", {Usuelle, MotCle, Source, Individuelle}},
        {"GRAD", {Usuelle, Source, Individuelle}},
        {"LEGA", {MotCle}},
        {"BURP", {MotCle}},
        {"CHRP", {MotCle}},
    });
}

}  // namespace detail

/// All kinds of events, in the order in which the usual words of a first run have them.
inline constexpr auto SortesEvenement = detail::FaireSortes();

/// The kind exists and is known for that.
[[nodiscard]] constexpr bool EstSorte(std::string_view tag, UsageSorte usage) {
    for (const SorteConnue& sorte : SortesEvenement)
        if (sorte.tag == tag && sorte.A(usage)) return true;
    return false;
}

}  // namespace dorvane
