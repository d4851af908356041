#include "records/ExempleNom.h"

#include "messages/Reglages.h"
#include "records/EssaiFamille.h"
#include "shell/Libelles.h"

using namespace dorvane;
using namespace dorvane::records;

TEST_CASE_FIXTURE(EssaiFamille, "ExempleDeNom: the sample person, in the order of the template") {
    const std::string prenom = session.Message(message::ExemplePrenom);
    const std::string nom = session.Message(message::ExempleNom);
    CHECK(ExempleDeNom(session, {"FNAM", "BIRN"}) == prenom + ' ' + nom);
    CHECK(ExempleDeNom(session, {"BIRN", "FNAM", "NUMB"}) == nom + ' ' + prenom + " [5]");
    CHECK(ExempleDeNom(session, {"OFNM", "FATN", "MOTN"}) ==
          session.Message(message::ExempleAutrePrenom) + ' ' + nom + ' ' +
              session.Message(message::ExempleNomDeLaMere));
}

TEST_CASE_FIXTURE(EssaiFamille,
                  "ExempleDeNom: a keyword stands as its label, an empty template gives nothing") {
    CHECK(ExempleDeNom(session, {"OCCU"}) == shell::LibelleDeTag(session.catalogue, "OCCU"));
    CHECK(ExempleDeNom(session, {}).empty());
}
