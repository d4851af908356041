#include "app/Options.h"

#include "app/Statuts.h"

#include <CLI/CLI.hpp>
#include <map>

namespace dorvane::outil {

namespace {

/// A value of any enum, as the reader of the line knows it.
enum class Numero : std::uint8_t {};

}  // namespace

Option& Option::Requise() {
    option_->required();
    return *this;
}

Option& Option::Exclut(const Option& autre) {
    option_->excludes(autre.option_);
    return *this;
}

Option& Option::Exige(const Option& autre) {
    option_->needs(autre.option_);
    return *this;
}

Option& Option::Parmi(const std::vector<std::string>& mots) {
    option_->check(CLI::IsMember(mots));
    return *this;
}

Option& Option::Entre(std::uint32_t premier, std::uint32_t dernier) {
    option_->check(CLI::Range(premier, dernier));
    return *this;
}

Option& Option::ParGroupes(int nombre) {
    option_->type_size(nombre)->allow_extra_args(false);
    return *this;
}

Option& Option::UneALaFois() {
    option_->allow_extra_args(false);
    return *this;
}

Option& Option::Verifier(const std::function<std::string()>& raison) {
    option_->check([raison](const std::string& /*valeur*/) { return raison(); });
    return *this;
}

bool Option::EstDonnee() const {
    return option_->count() > 0;
}

Verbe Verbe::Sous(const std::string& nom, const std::string& aide) {
    return Verbe{app_->add_subcommand(nom, aide), travail_};
}

Verbe Verbe::Groupe(const std::string& nom, const std::string& aide) {
    Verbe groupe = Sous(nom, aide);
    groupe.app_->require_subcommand(1);
    return groupe;
}

void Verbe::Alias(const std::string& nom) {
    app_->alias(nom);
}

template <class Valeur>
Option Verbe::Ajouter(const std::string& nom, Valeur& cible, const std::string& aide) {
    return Option{app_->add_option(nom, cible, aide)};
}

template Option Verbe::Ajouter(const std::string&, std::string&, const std::string&);
template Option Verbe::Ajouter(const std::string&, std::optional<std::string>&, const std::string&);
template Option Verbe::Ajouter(const std::string&, std::uint32_t&, const std::string&);
template Option Verbe::Ajouter(const std::string&, std::vector<std::string>&, const std::string&);
template Option Verbe::Ajouter(const std::string&, std::vector<std::uint32_t>&, const std::string&);

Option Verbe::Drapeau(const std::string& nom, bool& cible, const std::string& aide) {
    return Option{app_->add_flag(nom, cible, aide)};
}

Option Verbe::Choisir(const std::string& nom,
                      const std::vector<std::pair<std::string, std::uint8_t>>& mots,
                      std::function<void(std::uint8_t)> poser, const std::string& aide) {
    std::map<std::string, Numero> numeros;
    for (const auto& [mot, numero] : mots)
        numeros[mot] = Numero{numero};
    CLI::Option* option = app_->add_option_function<Numero>(
        nom, [poser = std::move(poser)](const Numero& lu) { poser(static_cast<std::uint8_t>(lu)); },
        aide);
    option->transform(CLI::CheckedTransformer(numeros));
    return Option{option};
}

void Verbe::LaisserLeReste() {
    app_->prefix_command();
}

std::vector<std::string> Verbe::Reste() const {
    return app_->remaining();
}

void Verbe::Faire(std::function<int()> travail) {
    app_->callback([ici = travail_, travail = std::move(travail)] { *ici = travail; });
}

LigneDeCommande::LigneDeCommande(const std::string& aide, const std::string& nom)
    : app_{std::make_unique<CLI::App>(aide, nom)} {
    app_->require_subcommand(1);
}

LigneDeCommande::~LigneDeCommande() = default;

Verbe LigneDeCommande::Verbes() {
    return Verbe{app_.get(), &travail_};
}

std::optional<int> LigneDeCommande::Lire(int nombre, const char* const* arguments) {
    try {
        app_->parse(nombre, arguments);
    } catch (const CLI::ParseError& erreur) {
        return app_->exit(erreur) == 0 ? Fait : MauvaisUsage;
    }
    return std::nullopt;
}

}  // namespace dorvane::outil
