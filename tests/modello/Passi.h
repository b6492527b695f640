#pragma once
// A step of a random sequence: what a user can do, to be done in the program and in the model.

#include "sostegno/Utente.h"

#include <array>
#include <string>
#include <variant>
#include <vector>

namespace telva::prove::passi {

struct Menu {
    std::string voce;
};
struct Muovi {
    double x, y;
};
struct Clic {
    double x, y;
};
struct ClicDestro {
    double x, y;
};
struct Trascina {
    std::vector<std::array<int, 2>> pixel;
};
struct DoppioClic {};
struct Rotella {
    int passi;
};
struct Larghezza {
    double twip;
};
struct Esc {};
struct Lettera {};
struct Risposta { // with Enter
    std::string testo;
};
struct Tipo {
    int tipo;
};
struct Mostra {
    Filtro filtro;
};
struct Tutto {
    Asse asse;
};
struct Intervallo {
    Estremo estremo;
    std::string testo;
    bool invio;
};
struct Angolo {
    Asse asse;
    std::string testo;
    bool invio;
};
struct Trappola {
    std::string testo;
    bool applica;
};

} // namespace telva::prove::passi

namespace telva::prove {

using PassoCasuale =
    std::variant<passi::Menu, passi::Muovi, passi::Clic, passi::ClicDestro, passi::Trascina,
                 passi::DoppioClic, passi::Rotella, passi::Larghezza, passi::Esc, passi::Lettera,
                 passi::Risposta, passi::Tipo, passi::Mostra, passi::Tutto, passi::Intervallo,
                 passi::Angolo, passi::Trappola>;

} // namespace telva::prove
