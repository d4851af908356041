#include "messages/Releve.h"
#include "windows/controles/TablesLegendes.h"

namespace dorvane::windows {

namespace {

using enum Propriete;

constexpr Legende Table[] = {
    {"FrmRelevé", "", Texte, message::TitreReleveAImporter},
    {"FrmRelevé", "LblSorte", Texte, message::SorteDeReleve},
    {"FrmRelevé", "GrdLignes", Acces, message::LignesDuReleve},
    {"FrmRelevé", "CmdImporter", Texte, message::BoutonImporterReleve},
    {"FrmRelevé", "CmdAnnuler", Texte, message::BoutonAnnulerReleve},
};

}  // namespace

std::span<const Legende> LegendesReleve() {
    return Table;
}

}  // namespace dorvane::windows
