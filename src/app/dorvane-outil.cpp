#include "app/Outil.h"

int main(int nombre, char** arguments) {
    return dorvane::outil::Executer(nombre, arguments);
}
