#include "shell/Libelles.h"

#include <algorithm>

namespace dorvane::shell {

namespace {

// The order matters: two tags may have one label, and the first one wins.
constexpr RangTag Tags[] = {
    // Persons and family
    {"BIRT", 754},
    {"BURI", 780},
    {"CHR", 782},
    {"DEAT", 755},
    {"MARR", 642},
    {"CHIL", 750},
    {"FATH", 681},
    {"MOTH", 683},
    {"HUSB", 850},
    {"WIFE", 851},
    {"DEAD", 914},
    {"WIDR", 937},
    {"WIDW", 938},
    {"SON", 749},
    {"DAUG", 751},
    // Months
    {"JAN", 730},
    {"FEB", 731},
    {"MAR", 732},
    {"APR", 733},
    {"MAY", 734},
    {"JUN", 735},
    {"JUL", 736},
    {"AUG", 737},
    {"SEP", 738},
    {"OCT", 739},
    {"NOV", 740},
    {"DEC", 741},
    // Places and names
    {"BIRP", 820},
    {"CHRP", 821},
    {"DEAP", 822},
    {"MARP", 823},
    {"BURP", 824},
    {"BIRN", 818},
    {"FNAM", 1046},
    {"NICK", 881},
    {"SURN", 896},
    {"OCCU", 795},
    // Events
    {"ADOP", 777},
    {"ANUL", 858},
    {"BARM", 778},
    {"BASM", 779},
    {"BLES", 870},
    {"CENS", 853},
    {"CONF", 783},
    {"CREM", 852},
    {"DIV", 813},
    {"DIVF", 859},
    {"EMIG", 786},
    {"ENDL", 902},
    {"ENGA", 812},
    {"FCOM", 854},
    {"GRAD", 855},
    {"IMMI", 788},
    {"LEGA", 903},
    {"MAIN", 972},
    {"MARB", 809},
    {"MARC", 810},
    {"MARL", 811},
    {"NATU", 792},
    {"ORDN", 796},
    {"PROB", 857},
    {"RETI", 856},
    {"WILL", 804},
    // Witness and care roles
    {"WITN", 911},
    {"GODF", 912},
    {"GODM", 913},
    {"GODC", 947},
    {"WARD", 946},
    {"GUAR", 945},
    // Date words
    {"BET", 833},
    {"AND", 834},
    {"BEF", 831},
    {"AFT", 830},
    {"EST", 832},
    {"CAL", 871},
    {"ABT", 828},
    // Others
    {"AUTH", 900},
    {"ADDR", 776},
    {"RESI", 801},
    {"TITL", 803},
    {"PEDI", 885},
    {"CAST", 781},
    {"DSCR", 784},
    {"EDUC", 785},
    {"GIVN", 880},
    {"OTHR", 909},
    {"NPFX", 883},
    {"SPFX", 895},
    {"NSFX", 884},
    {"PROP", 798},
    {"PUBL", 905},
    {"RELI", 799},
    {"FATN", 963},
    {"MOTN", 964},
    {"NATI", 791},
    {"NUMB", 965},
    {"OFNM", 1047},
    // Our own
    {"BATL", 1501},
    {"TREA", 1502},
    {"SACR", 1503},
    {"ELEC", 1504},
    {"NOMI", 1505},
    {"IMPR", 1506},
    {"IMPE", 1507},
    {"KING", 1508},
    {"QUEN", 1509},
    {"SUCC", 1510},
    {"BROT", 1511},
    {"SIST", 1512},
    {"UNCL", 1513},
    {"AUNT", 1514},
    {"GFAT", 1515},
    {"GMOT", 1516},
    {"SINL", 1517},
    {"DINL", 1518},
    {"FINL", 1519},
    {"MINL", 1520},
    {"BINL", 1521},
    {"SIIL", 1522},
    {"DUKE", 1523},
    {"DUCH", 1524},
    {"EARL", 1525},
    {"COUN", 1526},
    {"KILL", 1527},
    {"EXEC", 1528},
    {"SHOT", 1529},
    {"EXEN", 1530},
    {"MURD", 1531},
    {"SIEG", 1532},
    {"HEIR", 1533},
    {"HEIS", 1534},
    {"SIRE", 1535},
    {"LADY", 1536},
    {"RELA", 882},
    {"EVEN", 644},
};

}  // namespace

std::span<const RangTag> TableTags() {
    return Tags;
}

NoMessage MessageDeTag(std::string_view tag) {
    const auto* const rang =
        std::find_if(std::begin(Tags), std::end(Tags),
                     [tag](const RangTag& candidat) { return candidat.tag == tag; });
    return rang == std::end(Tags) ? NoMessage{} : NoMessage{rang->message};
}

std::string LibelleDeTag(const Catalogue& catalogue, std::string_view tag) {
    const NoMessage message = MessageDeTag(tag);
    return message ? catalogue.Message(message) : std::string{tag};
}

std::string TagDeLibelle(const Catalogue& catalogue, std::string_view texte) {
    if (texte.empty() || MessageDeTag(texte)) return std::string{texte};
    for (const RangTag& rang : Tags)
        if (catalogue.Message(NoMessage{rang.message}) == texte) return std::string{rang.tag};
    return std::string{texte};
}

TableLibelles::TableLibelles(const Catalogue& catalogue) {
    for (const RangTag& rang : Tags) {
        const std::string libelle = catalogue.Message(NoMessage{rang.message});
        libelles_.emplace(rang.tag, libelle);
        tags_.emplace(libelle, rang.tag);
    }
    // A tag stands for itself, even where it is also the label of another.
    for (const RangTag& rang : Tags)
        tags_.insert_or_assign(std::string{rang.tag}, std::string{rang.tag});
    tags_.erase("");
}

std::string_view TableLibelles::LibelleDeTag(std::string_view tag) const {
    const auto trouve = libelles_.find(tag);
    return trouve == libelles_.end() ? tag : std::string_view{trouve->second};
}

std::string_view TableLibelles::TagDeLibelle(std::string_view texte) const {
    const auto trouve = tags_.find(texte);
    return trouve == tags_.end() ? texte : std::string_view{trouve->second};
}

}  // namespace dorvane::shell
