#pragma once

#include "values/Texte1252.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace dorvane::doublures {

/// A GEDCOM file of a village that never was, in code page 1252 and with CR LF: families over many
/// generations, events with dates of every form, places, occupations, notes, sources, shared notes,
/// friends. The same number and seed give the same bytes.
class FichierEssai {
public:
    FichierEssai(std::uint32_t personnes, std::uint32_t graine) : hasard_{graine} {
        Naitre(personnes);
        Ecrire();
    }

    [[nodiscard]] const std::string& Octets() const { return octets_; }

private:
    struct Personne {
        bool homme = true;
        std::string nom;
        std::string prenoms;
        std::uint32_t naissance = 0;
        std::uint32_t famc = 0;
        std::vector<std::uint32_t> fams;
    };
    struct Famille {
        std::uint32_t mari = 0;
        std::uint32_t femme = 0;
        std::uint32_t annee = 0;
        std::vector<std::uint32_t> enfants;
    };

    std::uint32_t Tirer(std::uint32_t n) { return static_cast<std::uint32_t>(hasard_() % n); }
    bool Fois(std::uint32_t surCent) { return Tirer(100) < surCent; }
    template <std::size_t N>
    std::string Parmi(const std::array<std::string_view, N>& choix) {
        return std::string{choix[Tirer(static_cast<std::uint32_t>(N))]};
    }

    std::string Nom() {
        static constexpr std::array<std::string_view, 14> Noms{
            "Martin",           "Évrard"_1252, "de la Motte",   "Le Goff",     "Ménard"_1252,
            "d'Hauteville",     "Poitevin",    "Bœuf"_1252,     "Garnier",     "Gueguen",
            "Saint-Léger"_1252, "Noël"_1252,   "Thébault"_1252, "Lefèvre"_1252};
        return Parmi(Noms);
    }
    std::string Prenoms(bool homme) {
        static constexpr std::array<std::string_view, 8> Hommes{
            "Jean",      "Pierre Marie", "François"_1252,   "Guillaume",
            "Noël"_1252, "Yves",         "René Louis"_1252, "Jean-Baptiste"};
        static constexpr std::array<std::string_view, 8> Femmes{
            "Marie",   "Anne",   "Zoé"_1252,   "Jeanne Françoise"_1252,
            "Perrine", "Louise", "Marie-Anne", "Hélène Julie"_1252};
        return homme ? Parmi(Hommes) : Parmi(Femmes);
    }
    std::string Lieu() {
        static constexpr std::array<std::string_view, 8> Lieux{"Brest, Finistère"_1252,
                                                               "Saint-Malo",
                                                               "La Chapelle-aux-Bois, Vosges",
                                                               "Châteauneuf (Île)"_1252,
                                                               "Rennes, Ille-et-Vilaine, Bretagne",
                                                               "l'Hôpital"_1252,
                                                               "Le Mans",
                                                               "Aÿ, Marne"_1252};
        return Parmi(Lieux);
    }
    std::string Jour(std::uint32_t annee) {
        static constexpr std::array<std::string_view, 12> Mois{
            "JAN", "FEB", "MAR", "APR", "MAY", "JUN", "JUL", "AUG", "SEP", "OCT", "NOV", "DEC"};
        return std::to_string(1 + Tirer(28)) + ' ' + Parmi(Mois) + ' ' + std::to_string(annee);
    }
    std::string Date(std::uint32_t annee) {
        const std::string an = std::to_string(annee);
        switch (Tirer(12)) {
            case 0:
                return "ABT " + an;
            case 1:
                return "BEF " + an;
            case 2:
                return "AFT " + an;
            case 3:
                return "BET " + std::to_string(annee - 3) + " AND " + an;
            case 4:
                return "MAR " + an;
            case 5:
                return an;
            default:
                return Jour(annee);
        }
    }
    std::string Phrase() {
        static constexpr std::array<std::string_view, 7> Phrases{
            "Il est dit majeur à son mariage et signe d'une belle main."_1252,
            "Parrain et marraine : ses grands-parents, qui ont déclaré ne savoir signer."_1252,
            "Registre abîmé, lecture incertaine des trois dernières lignes."_1252,
            "Voir aussi l'acte de vente passé devant le notaire du lieu en présence de cinq "
            "témoins, parmi lesquels le recteur et deux cousins du côté maternel de la famille."_1252,
            "Sans profession.",
            "Écrit à l'encre rouge."_1252,
            "Cote 3 E 12/45, page 7, vue 102."};
        return Parmi(Phrases);
    }

    void Naitre(std::uint32_t nombre) {
        personnes_.resize(1);
        familles_.resize(1);
        const std::uint32_t fondateurs = std::max<std::uint32_t>(4, nombre / 8);
        for (std::uint32_t i = 0; i < fondateurs && personnes_.size() <= nombre; ++i) {
            const bool homme = i % 2 == 0;
            personnes_.push_back({homme, Nom(), Prenoms(homme), 1620 + Tirer(40), 0, {}});
        }
        std::uint32_t suivant = 1;
        while (personnes_.size() <= nombre) {
            const std::uint32_t mari = Celibataire(suivant, true);
            const std::uint32_t femme = Celibataire(suivant, false);
            suivant = suivant + 2 < personnes_.size() ? suivant + 2 : 1;
            if (SontUnis(mari, femme)) continue;
            const std::uint32_t f = static_cast<std::uint32_t>(familles_.size());
            familles_.push_back({mari, femme, personnes_[mari].naissance + 22 + Tirer(10), {}});
            personnes_[mari].fams.push_back(f);
            personnes_[femme].fams.push_back(f);
            for (std::uint32_t k = 1 + Tirer(5); k > 0 && personnes_.size() <= nombre; --k) {
                const bool homme = Tirer(2) == 0;
                familles_[f].enfants.push_back(static_cast<std::uint32_t>(personnes_.size()));
                personnes_.push_back({homme,
                                      personnes_[mari].nom,
                                      Prenoms(homme),
                                      familles_[f].annee + 2 * k,
                                      f,
                                      {}});
            }
        }
    }
    [[nodiscard]] bool SontUnis(std::uint32_t mari, std::uint32_t femme) const {
        return std::ranges::any_of(personnes_[mari].fams,
                                   [&](std::uint32_t f) { return familles_[f].femme == femme; });
    }
    /// The next one from `n` on of that sex who has fewer than two unions.
    std::uint32_t Celibataire(std::uint32_t n, bool homme) {
        for (std::size_t fois = 0; fois < personnes_.size(); ++fois, ++n) {
            if (n >= personnes_.size()) n = 1;
            if (personnes_[n].homme == homme && personnes_[n].fams.size() < 2) return n;
        }
        const auto neuf = static_cast<std::uint32_t>(personnes_.size());
        personnes_.push_back({homme, Nom(), Prenoms(homme), 1700, 0, {}});
        return neuf;
    }

    void Ligne(int niveau, std::string_view reste) {
        octets_ += std::to_string(niveau) + ' ';
        octets_ += reste;
        octets_ += "\r\n";
    }
    static std::string Cle(char sorte, std::size_t n) {
        return '@' + std::string(1, sorte) + std::to_string(n) + '@';
    }
    void Note(int niveau) {
        Ligne(niveau, "NOTE " + Phrase());
        for (std::uint32_t k = Tirer(4); k > 0; --k)
            Ligne(niveau + 1, (Fois(70) ? "CONT " : "CONC ") + Phrase());
    }
    void Fait(const char* tag, const std::string& date, bool source) {
        Ligne(1, tag);
        if (!date.empty()) Ligne(2, "DATE " + date);
        if (Fois(90)) Ligne(2, "PLAC " + Lieu());
        if (Fois(8)) Note(2);
        if (!source || !Fois(40)) return;
        Ligne(2, "SOUR " + Cle('S', 1 + Tirer(Sources)));
        if (Fois(50)) Ligne(3, "PAGE vue " + std::to_string(Tirer(400)));
    }

    void EcrirePersonne(std::size_t i) {
        const Personne& p = personnes_[i];
        Ligne(0, Cle('I', i) + " INDI");
        Ligne(1, "NAME " + p.prenoms + " /" + p.nom + '/');
        if (Fois(4)) Ligne(2, "NICK le Grand");
        Ligne(1, p.homme ? "SEX M" : "SEX F");
        if (Fois(90)) Fait("BIRT", Date(p.naissance), true);
        if (Fois(40)) Fait("CHR", Jour(p.naissance), true);
        if (Fois(45)) {
            static constexpr std::array<std::string_view, 4> Metiers{
                "laboureur", "maître tonnelier"_1252, "tisserande", "journalier"};
            Ligne(1, "OCCU " + Parmi(Metiers));
            if (Fois(30)) Ligne(2, "DATE " + std::to_string(p.naissance + 30));
        }
        if (Fois(2)) Ligne(1, "TITL sieur de la Motte");
        if (Fois(80)) Fait("DEAT", Date(p.naissance + 30 + Tirer(50)), true);
        if (Fois(20)) Fait("BURI", Jour(p.naissance + 81), false);
        if (Fois(22)) Note(1);
        if (Fois(5)) Ligne(1, "NOTE " + Cle('N', 1 + Tirer(Notes)));
        if (Fois(10)) Ligne(1, "SOUR " + Cle('S', 1 + Tirer(Sources)));
        if (Fois(3)) {
            const std::size_t autre = i == 1 ? 2 : i - 1;
            Ligne(1, "ASSO " + Cle('I', autre));
            Ligne(2, "RELA voisin");
        }
        if (p.famc != 0) Ligne(1, "FAMC " + Cle('F', p.famc));
        for (const std::uint32_t f : p.fams)
            Ligne(1, "FAMS " + Cle('F', f));
    }
    void EcrireFamille(std::size_t i) {
        const Famille& f = familles_[i];
        Ligne(0, Cle('F', i) + " FAM");
        Ligne(1, "HUSB " + Cle('I', f.mari));
        Ligne(1, "WIFE " + Cle('I', f.femme));
        if (Fois(88)) Fait("MARR", Date(f.annee), true);
        if (Fois(6)) Fait("MARC", Jour(f.annee), false);
        for (const std::uint32_t enfant : f.enfants)
            Ligne(1, "CHIL " + Cle('I', enfant));
        if (Fois(5)) Note(1);
    }
    void Ecrire() {
        for (const char* ligne : {"0 HEAD", "1 SOUR ESSAI", "1 GEDC", "2 VERS 5.5",
                                  "2 FORM LINEAGE-LINKED", "1 CHAR ANSI", "1 SUBM @U1@"})
            Ligne(ligne[0] - '0', ligne + 2);
        for (std::size_t i = 1; i < personnes_.size(); ++i)
            EcrirePersonne(i);
        for (std::size_t i = 1; i < familles_.size(); ++i)
            EcrireFamille(i);
        for (std::size_t i = 1; i <= Sources; ++i) {
            Ligne(0, Cle('S', i) + " SOUR");
            Ligne(1, "TITL Registre de " + Lieu());
            Ligne(1, "AUTH Archives");
            if (Fois(30)) Note(1);
        }
        for (std::size_t i = 1; i <= Notes; ++i) {
            Ligne(0, Cle('N', i) + " NOTE " + Phrase());
            if (Fois(50)) Ligne(1, "CONT " + Phrase());
        }
        Ligne(0, "@U1@ SUBM");
        Ligne(1, "NAME Jean Essai");
        Ligne(0, "TRLR");
    }

    static constexpr std::uint32_t Sources = 60;
    static constexpr std::uint32_t Notes = 40;
    std::mt19937 hasard_;
    std::vector<Personne> personnes_;
    std::vector<Famille> familles_;
    std::string octets_;
};

}  // namespace dorvane::doublures
