#include "app/Outil.h"
#include "app/Systeme.h"

int main(int nombre, char** arguments) {
    return dorvane::outil::ExecuterProgramme(
        [&] { return dorvane::outil::Executer(nombre, arguments); });
}
