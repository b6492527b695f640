#pragma once
// Small jobs for the tests, told element by element.

#include <array>
#include <string>
#include <vector>

namespace telva::prove {

// A job in a few lines; every field has a harmless default.
struct LavoroProva {
    struct Nodo {
        int punto, nome, colore = 1, tipo = 0, vincolo = 0;
    };
    struct Asta {
        int i, j, nome, colore = 1, tipo = 0, sezione = 0, svincolo = 0, orientamento = 0;
    };
    struct Guscio {
        std::array<int, 4> nodi;
        int nome, colore = 1, tratto = 0, spessore = 0;
    };
    struct ElCont {
        int numero;
        std::string nome;
        std::vector<int> aste; // bar names
    };
    struct Spessore {
        int materiale;
        double valore;
    };
    std::vector<std::array<double, 3>> punti;
    std::vector<Nodo> nodi;
    std::vector<Asta> aste;
    std::vector<Guscio> gusci;
    std::vector<ElCont> elementi;
    std::vector<Spessore> spessori;
    std::vector<int> sezioni; // materials

    std::string Struttura() const; // text of STRUTTUR.STR
};

// A plane frame seen from the front with angles 0,0,0: nodes 1..9 on a 3 x 3 grid 100 apart, bars
// 1..6 along x (rows upwards), 7..12 along z, four shells 1..4, two continuous elements (10: bars
// 1,2; 20: bars 3,4), sections 1..2, thicknesses 1..2. Colours, cards and types differ.
LavoroProva Telaio();

} // namespace telva::prove
