#include "windows/controles/TablesLegendes.h"

namespace dorvane::windows {

namespace {

using enum Propriete;

constexpr Legende Table[] = {
    {"MDIForm1", "MnuExporter", Texte, 4243},
    {"MDIForm1", "MnuExporterSélectif", Texte, 4244},
    {"MDIForm1", "MnuIntégrer", Texte, 4245},

    {"FrmExporter", "", Texte, 4200},
    {"FrmExporter", "LblPersonnes", Texte, 3044},
    {"FrmExporter", "OptBase(0)", Texte, 4202},
    {"FrmExporter", "OptBase(1)", Texte, 4203},
    {"FrmExporter", "LblNom", Texte, 4204},
    {"FrmExporter", "CmdListe", Texte, 4205},
    {"FrmExporter", "OptExport(0)", Texte, 4206},
    {"FrmExporter", "OptExport(1)", Texte, 4207},
    {"FrmExporter", "LblGen", Texte, 4208},
    {"FrmExporter", "UpDown1", Acces, 4208},
    {"FrmExporter", "CmdSélection", Texte, 4209},
    {"FrmExporter", "CmdVider", Texte, 4210},
    {"FrmExporter", "LstSélection", Acces, 4249},
    {"FrmExporter", "LstSélection", Bulle, 4249},
    {"FrmExporter", "ChkCollateraux", Texte, 4211},
    {"FrmExporter", "ChkCollateraux", Bulle, 4247},
    {"FrmExporter", "ChkComplet", Texte, 4216},
    {"FrmExporter", "ChkComplet", Bulle, 4246},
    {"FrmExporter", "Ecarter", Texte, 4214},
    {"FrmExporter", "Chk1900", Texte, 4215},
    {"FrmExporter", "LblFormat", Texte, 4219},
    {"FrmExporter", "ChxFormat", Ligne, 4217, 0},
    {"FrmExporter", "ChxFormat", Ligne, 4218, 1},
    {"FrmExporter", "LblJeu", Texte, 4220},
    {"FrmExporter", "CboJeu", Bulle, 4248},
    {"FrmExporter", "CmdDossier", Texte, 4230},
    {"FrmExporter", "CmdLancer", Texte, 4228},
};

}  // namespace

std::span<const Legende> LegendesEchange() {
    return Table;
}

}  // namespace dorvane::windows
