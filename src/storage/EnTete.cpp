// The 200 bytes, by 1-based position: 1 mark (30), 31 FinFichier, 35 NbTriIndividus,
// 37 DernierIndividu, 39 DernierEvenement, 41 NbTriEvenements, 43 DernierMariage, 45 TypeTri,
// 46 NbMotsCles, 48 TypePresentation, 50 PosRepEvt, 54 PosRepTriEvt, 58 PosRepLstEvt, 66 NbIndex,
// 101 DernierDocument, 103 NbTriDocuments, 105 to 108 flags, 109 and 129 slots, 149 DocBase,
// 161 PosSuiteIndividus, 165 PosSuiteIndex, 169 PosSuiteMariages.
#include "storage/EnTete.h"

#include "values/Comparaison.h"
#include "values/Octets.h"

#include <algorithm>

namespace dorvane::storage {
namespace {

constexpr std::size_t TailleMarque = 30;
constexpr std::uint32_t DeuxBlancs = 0x2020;

/// Reads fields by 1-based position.
class Champs {
public:
    explicit Champs(std::string_view octets) : octets_{octets} {}
    [[nodiscard]] std::uint32_t Num2(std::size_t position) const {
        return Chaine2VersNum(octets_.substr(position - 1, 2));
    }
    [[nodiscard]] std::uint32_t Num4(std::size_t position) const {
        return Chaine4VersNum(octets_.substr(position - 1, 4));
    }
    [[nodiscard]] char Car(std::size_t position) const { return octets_[position - 1]; }
    [[nodiscard]] bool Vrai(std::size_t position) const { return Car(position) == '1'; }

private:
    std::string_view octets_;
};

Slots LireSlots(const Champs& champs, std::size_t position) {
    Slots slots;
    for (Slot& slot : slots) {
        slot = {champs.Car(position), champs.Car(position + 1)};
        // Zeros are what a header that never held slots reads as.
        if (slot.symbole == '\0') slot = {};
        position += 2;
    }
    return slots;
}

AnciensReglages LireAnciens(const Champs& champs) {
    AnciensReglages anciens;
    anciens.personneEnCours = static_cast<std::uint16_t>(champs.Num2(39));
    anciens.secondePersonne = static_cast<std::uint16_t>(champs.Num2(41));
    anciens.typePresentation = static_cast<std::uint16_t>(champs.Num2(48));
    for (std::size_t i = 0; i < anciens.positionsPolices.size(); ++i)
        anciens.positionsPolices[i] = Position{champs.Num4(50 + 4 * i)};
    const char drapeau = champs.Car(68);
    anciens.drapeau68 = drapeau == '2' ? '2' : '1';
    anciens.drapeau69 = champs.Car(69);
    anciens.couleursPresentes = champs.Vrai(70);
    if (anciens.couleursPresentes)
        for (std::size_t i = 0; i < anciens.couleurs.size(); ++i)
            anciens.couleurs[i] = champs.Num4(71 + 4 * i);
    anciens.drapeau99 = champs.Car(99);
    anciens.drapeau100 = champs.Car(100);
    return anciens;
}

void LireEvenements(EnTete& entete, const Champs& champs) {
    entete.DernierEvenement = champs.Num2(39);
    entete.NbTriEvenements = champs.Num2(41);
    entete.PosRepEvt = Position{champs.Num4(50)};
    entete.PosRepTriEvt = Position{champs.Num4(54)};
    entete.PosRepLstEvt = Position{champs.Num4(58)};
}

/// Writes fields by 1-based position into 200 bytes of 0.
class Composition {
public:
    void Num2(std::size_t position, std::uint32_t valeur) {
        octets_.replace(position - 1, 2, NumVersChaine2(valeur));
    }
    void Num4(std::size_t position, std::uint32_t valeur) {
        octets_.replace(position - 1, 4, NumVersChaine4(valeur));
    }
    void Car(std::size_t position, char valeur) { octets_[position - 1] = valeur; }
    void Drapeau(std::size_t position, bool valeur) { Car(position, valeur ? '1' : '0'); }
    void EcrireSlots(std::size_t position, const Slots& slots) {
        for (const Slot& slot : slots) {
            Car(position, slot.symbole);
            Car(position + 1, slot.drapeau);
            position += 2;
        }
    }
    std::string octets_ = std::string(TailleEnTete, '\0');
};

}  // namespace

std::size_t NbSlots(const Slots& slots) {
    const auto* const fin = std::find_if(slots.begin(), slots.end(),
                                         [](const Slot& slot) { return slot.symbole == ' '; });
    return static_cast<std::size_t>(fin - slots.begin());
}

std::string EnTete::MarqueComparee() const {
    return EnMajuscules(SansBlancs(marque));
}

bool EnTete::AvantVersion3() const {
    return MarqueComparee() < "[DORVANE VERSION 3.0]";
}

bool EnTete::AvantVersion97() const {
    return MarqueComparee() < "[DORVANE VERSION 97.0]";
}

bool EnTete::AvantVersion972() const {
    // Without the bracket, so that a letter behind the number does not make the file older.
    return MarqueComparee() < "[DORVANE VERSION 97.2";
}

bool PorteMarque(std::string_view octets) {
    constexpr std::string_view Debut = "[DORVANE VERSION ";
    const std::string marque = EnMajuscules(SansBlancs(octets.substr(0, TailleMarque)));
    return marque.starts_with(Debut) && marque.ends_with(']') && marque.size() > Debut.size() + 1 &&
           EstChiffre(marque[Debut.size()]);
}

EnTete DecoderEnTete(std::string_view octets, Position premierBlocIndex) {
    const Champs champs{octets};
    EnTete entete;
    entete.marque = octets.substr(0, TailleMarque);
    entete.FinFichier = champs.Num4(31);
    entete.NbTriIndividus = champs.Num2(35);
    entete.DernierIndividu = champs.Num2(37);
    entete.DernierMariage = champs.Num2(43);
    entete.TypeTri = static_cast<TypeTri>(champs.Car(45));
    entete.NbMotsCles = std::min(champs.Num2(46), MaxMotsCles);
    entete.NbIndex = champs.Num2(66);
    // A file without the index has blanks here, which are also a count.
    if (entete.NbIndex == DeuxBlancs && (entete.AvantVersion97() || !premierBlocIndex))
        entete.NbIndex = 0;
    entete.OptPrenomUnique = champs.Vrai(105);
    entete.OptParticules = champs.Vrai(106);
    entete.OptOrigine97 = champs.Vrai(107);
    entete.LibellesNeutres = false;
    if (entete.AvantVersion3()) {
        entete.anciens = LireAnciens(champs);
    } else {
        entete.DernierDocument = champs.Num2(101);
        entete.NbTriDocuments = champs.Num2(103);
    }
    if (!entete.AvantVersion97()) {
        LireEvenements(entete, champs);
        entete.LibellesNeutres = champs.Vrai(108);
    }
    if (!entete.AvantVersion972()) {
        entete.SlotsIndividu = LireSlots(champs, 109);
        entete.SlotsMariage = LireSlots(champs, 129);
        if (champs.Vrai(149)) entete.DocBase = NoDocument{champs.Num2(150)};
    }
    if (entete.DernierIndividu > SeuilSuite) entete.PosSuiteIndividus = Position{champs.Num4(161)};
    if (entete.NbIndex > SeuilSuiteIndex) entete.PosSuiteIndex = Position{champs.Num4(165)};
    if (entete.DernierMariage > SeuilSuite) entete.PosSuiteMariages = Position{champs.Num4(169)};
    return entete;
}

std::string ComposerEnTete(const EnTete& entete, std::uint32_t finFichier) {
    Composition c;
    c.octets_.replace(0, TailleMarque, MarqueCourante);
    c.Num4(31, finFichier);
    c.Num2(35, entete.NbTriIndividus);
    c.Num2(37, entete.DernierIndividu);
    c.Num2(39, entete.DernierEvenement);
    c.Num2(41, entete.NbTriEvenements);
    c.Num2(43, entete.DernierMariage);
    c.Car(45, static_cast<char>(entete.TypeTri));
    c.Num2(46, entete.NbMotsCles);
    c.Num2(48, entete.TypePresentation);
    c.Num4(50, entete.PosRepEvt.valeur);
    c.Num4(54, entete.PosRepTriEvt.valeur);
    c.Num4(58, entete.PosRepLstEvt.valeur);
    c.Num2(66, entete.NbIndex);
    c.Num2(101, entete.DernierDocument);
    c.Num2(103, entete.NbTriDocuments);
    c.Drapeau(105, entete.OptPrenomUnique);
    c.Drapeau(106, entete.OptParticules);
    c.Drapeau(107, entete.OptOrigine97);
    c.Drapeau(108, entete.LibellesNeutres);
    c.EcrireSlots(109, entete.SlotsIndividu);
    c.EcrireSlots(129, entete.SlotsMariage);
    c.Drapeau(149, static_cast<bool>(entete.DocBase));
    c.Num2(150, entete.DocBase.valeur);
    c.Num4(161, entete.PosSuiteIndividus.valeur);
    c.Num4(165, entete.PosSuiteIndex.valeur);
    c.Num4(169, entete.PosSuiteMariages.valeur);
    return c.octets_;
}

}  // namespace dorvane::storage
