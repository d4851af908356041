#include "messages/Exporter.h"
#include "messages/Faits.h"
#include "windows/controles/TablesLegendes.h"

namespace dorvane::windows {

namespace {

using enum Propriete;

constexpr Legende Table[] = {

    {"FrmExporter", "", Texte, message::TitreExporter},
    {"FrmExporter", "LblPersonnes", Texte, message::ColonnePersonnes},
    {"FrmExporter", "OptBase(0)", Texte, message::ChoixTouteLaBase},
    {"FrmExporter", "OptBase(1)", Texte, message::ChoixUnePartieDeLaBase},
    {"FrmExporter", "LblNom", Texte, message::PersonneDeDepart},
    {"FrmExporter", "CmdListe", Texte, message::BoutonChoisirDepart},
    {"FrmExporter", "OptExport(0)", Texte, message::ChoixAscendants},
    {"FrmExporter", "OptExport(1)", Texte, message::ChoixDescendants},
    {"FrmExporter", "LblGen", Texte, message::NombreDeGenerations},
    {"FrmExporter", "UpDown1", Acces, message::NombreDeGenerations},
    {"FrmExporter", "CmdSélection", Texte, message::BoutonSelection},
    {"FrmExporter", "CmdVider", Texte, message::BoutonViderSelection},
    {"FrmExporter", "LstSélection", Acces, message::BulleSelectionExport},
    {"FrmExporter", "LstSélection", Bulle, message::BulleSelectionExport},
    {"FrmExporter", "ChkCollateraux", Texte, message::ChoixCollateraux},
    {"FrmExporter", "ChkCollateraux", Bulle, message::BulleCollateraux},
    {"FrmExporter", "ChkComplet", Texte, message::ChoixComplete},
    {"FrmExporter", "ChkComplet", Bulle, message::BulleExportComplet},
    {"FrmExporter", "Ecarter", Texte, message::TitreEcarter},
    {"FrmExporter", "Chk1900", Texte, message::ChoixNaissanceApres1900},
    {"FrmExporter", "LblFormat", Texte, message::FormatDExport},
    {"FrmExporter", "ChxFormat", Ligne, message::FormatGedcom, 0},
    {"FrmExporter", "ChxFormat", Ligne, message::FormatDorvane, 1},
    {"FrmExporter", "LblJeu", Texte, message::JeuDeCaracteresExport},
    {"FrmExporter", "CboJeu", Bulle, message::BulleJeuDeCaracteres},
    {"FrmExporter", "CmdDossier", Texte, message::BoutonOuvrirDossier},
    {"FrmExporter", "CmdLancer", Texte, message::BoutonLancerExport},
};

}  // namespace

std::span<const Legende> LegendesEchange() {
    return Table;
}

}  // namespace dorvane::windows
