#include "shell/Libelles.h"

#include "messages/Messages.h"
#include "values/SortesEvenement.h"

#include <algorithm>

namespace dorvane::shell {

namespace {

// The order matters: two tags may have one label, and the first one wins.
constexpr RangTag Tags[] = {
    // Persons and family
    {tag::Naissance, message::TagBIRT},
    {tag::Inhumation, message::TagBURI},
    {tag::Bapteme, message::TagCHR},
    {tag::Deces, message::TagDEAT},
    {tag::Mariage, message::TagMARR},
    {role::Enfant, message::TagCHIL},
    {role::Pere, message::TagFATH},
    {role::Mere, message::TagMOTH},
    {role::Epoux, message::TagHUSB},
    {role::Epouse, message::TagWIFE},
    {role::Defunt, message::TagDEAD},
    {"WIDR", message::TagWIDR},
    {"WIDW", message::TagWIDW},
    {"SON", message::TagSON},
    {"DAUG", message::TagDAUG},
    // Months
    {"JAN", message::TagJAN},
    {"FEB", message::TagFEB},
    {"MAR", message::TagMAR},
    {"APR", message::TagAPR},
    {"MAY", message::TagMAY},
    {"JUN", message::TagJUN},
    {"JUL", message::TagJUL},
    {"AUG", message::TagAUG},
    {"SEP", message::TagSEP},
    {"OCT", message::TagOCT},
    {"NOV", message::TagNOV},
    {"DEC", message::TagDEC},
    // Places and names
    {"BIRP", message::TagBIRP},
    {"CHRP", message::TagCHRP},
    {"DEAP", message::TagDEAP},
    {"MARP", message::TagMARP},
    {"BURP", message::TagBURP},
    {tag::Nom, message::TagBIRN},
    {tag::Prenom, message::TagFNAM},
    {"NICK", message::TagNICK},
    {"SURN", message::TagSURN},
    {tag::Profession, message::TagOCCU},
    // Events
    {"ADOP", message::TagADOP},
    {"ANUL", message::TagANUL},
    {"BARM", message::TagBARM},
    {"BASM", message::TagBASM},
    {"BLES", message::TagBLES},
    {"CENS", message::TagCENS},
    {"CONF", message::TagCONF},
    {"CREM", message::TagCREM},
    {tag::Divorce, message::TagDIV},
    {"DIVF", message::TagDIVF},
    {"EMIG", message::TagEMIG},
    {"ENDL", message::TagENDL},
    {"ENGA", message::TagENGA},
    {"FCOM", message::TagFCOM},
    {"GRAD", message::TagGRAD},
    {"IMMI", message::TagIMMI},
    {"LEGA", message::TagLEGA},
    {"MAIN", message::TagMAIN},
    {"MARB", message::TagMARB},
    {"MARC", message::TagMARC},
    {tag::Contrat, message::TagMARL},
    {"NATU", message::TagNATU},
    {"ORDN", message::TagORDN},
    {"PROB", message::TagPROB},
    {"RETI", message::TagRETI},
    {"WILL", message::TagWILL},
    // Witness and care roles
    {"WITN", message::TagWITN},
    {"GODF", message::TagGODF},
    {"GODM", message::TagGODM},
    {"GODC", message::TagGODC},
    {"WARD", message::TagWARD},
    {"GUAR", message::TagGUAR},
    // Date words
    {"BET", message::TagBET},
    {"AND", message::TagAND},
    {"BEF", message::TagBEF},
    {"AFT", message::TagAFT},
    {"EST", message::TagEST},
    {"CAL", message::TagCAL},
    {"ABT", message::TagABT},
    // Others
    {"AUTH", message::TagAUTH},
    {"ADDR", message::TagADDR},
    {tag::Residence, message::TagRESI},
    {"TITL", message::TagTITL},
    {"PEDI", message::TagPEDI},
    {"CAST", message::TagCAST},
    {"DSCR", message::TagDSCR},
    {"EDUC", message::TagEDUC},
    {"GIVN", message::TagGIVN},
    {tag::Autre, message::TagOTHR},
    {"NPFX", message::TagNPFX},
    {"SPFX", message::TagSPFX},
    {"NSFX", message::TagNSFX},
    {"PROP", message::TagPROP},
    {"PUBL", message::TagPUBL},
    {"RELI", message::TagRELI},
    {tag::NomDuPere, message::TagFATN},
    {tag::NomDeLaMere, message::TagMOTN},
    {"NATI", message::TagNATI},
    {tag::Numeros, message::TagNUMB},
    {tag::AutresPrenoms, message::TagOFNM},
    // Our own
    {"BATL", message::TagBATL},
    {"TREA", message::TagTREA},
    {"SACR", message::TagSACR},
    {"ELEC", message::TagELEC},
    {"NOMI", message::TagNOMI},
    {"IMPR", message::TagIMPR},
    {"IMPE", message::TagIMPE},
    {"KING", message::TagKING},
    {"QUEN", message::TagQUEN},
    {"SUCC", message::TagSUCC},
    {"BROT", message::TagBROT},
    {"SIST", message::TagSIST},
    {"UNCL", message::TagUNCL},
    {"AUNT", message::TagAUNT},
    {"GFAT", message::TagGFAT},
    {"GMOT", message::TagGMOT},
    {"SINL", message::TagSINL},
    {"DINL", message::TagDINL},
    {"FINL", message::TagFINL},
    {"MINL", message::TagMINL},
    {"BINL", message::TagBINL},
    {"SIIL", message::TagSIIL},
    {"DUKE", message::TagDUKE},
    {"DUCH", message::TagDUCH},
    {"EARL", message::TagEARL},
    {"COUN", message::TagCOUN},
    {"KILL", message::TagKILL},
    {"EXEC", message::TagEXEC},
    {"SHOT", message::TagSHOT},
    {"EXEN", message::TagEXEN},
    {"MURD", message::TagMURD},
    {"SIEG", message::TagSIEG},
    {"HEIR", message::TagHEIR},
    {"HEIS", message::TagHEIS},
    {"SIRE", message::TagSIRE},
    {"LADY", message::TagLADY},
    {tag::Relation, message::TagRELA},
    {"EVEN", message::TagEVEN},
};

}  // namespace

std::span<const RangTag> TableTags() {
    return Tags;
}

NoMessage MessageDeTag(std::string_view tag) {
    const auto* const rang =
        std::find_if(std::begin(Tags), std::end(Tags),
                     [tag](const RangTag& candidat) { return candidat.tag == tag; });
    return rang == std::end(Tags) ? NoMessage{} : rang->message;
}

std::string LibelleDeTag(const Catalogue& catalogue, std::string_view tag) {
    const NoMessage message = MessageDeTag(tag);
    return message ? catalogue.Message(message) : std::string{tag};
}

std::string TagDeLibelle(const Catalogue& catalogue, std::string_view texte) {
    if (texte.empty() || MessageDeTag(texte)) return std::string{texte};
    for (const RangTag& rang : Tags)
        if (catalogue.Message(rang.message) == texte) return std::string{rang.tag};
    return std::string{texte};
}

TableLibelles::TableLibelles(const Catalogue& catalogue) {
    for (const RangTag& rang : Tags) {
        const std::string libelle = catalogue.Message(rang.message);
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
