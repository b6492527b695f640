// One job as data: what the generator builds and the writer writes.
#pragma once

#include <array>
#include <string>
#include <utility>
#include <vector>

namespace telva::generatore {

// Full capacities of the tables of a job.
inline constexpr int MaxPunti = 20001;
inline constexpr int MaxNodi = 20001;
inline constexpr int MaxAste = 20001;
inline constexpr int MaxGusci = 16001;
inline constexpr int MaxElCont = 2000;
inline constexpr int MaxAsteElCont = 300;
inline constexpr int MaxSpessori = 100;
inline constexpr int MaxSezioni = 99;
inline constexpr int MaxTesti = 201;
inline constexpr int MaxNome = 32000;

// Coordinates are in cm and always whole hundredths, so that they survive text exactly.
struct Punto {
    double X = 0, Y = 0, Z = 0;
    bool operator==(const Punto &) const = default;
};

struct Nodo {
    int IndicePunto = 0, TipoPunto = 0, Colore = 0, Nome = 0, Vincolo = 0;
};

struct Asta {
    int NodoI = 0, NodoJ = 0, TipoLinea = 0, Colore = 0;
    int Nome = 0, Sezione = 0, Svincolo = 0, Orientamento = 0, Dato5 = 0, Dato6 = 0;
    Punto IngI, IngJ; // envelope points, meaningful only when Nome > 0
};

struct Guscio {
    std::array<int, 4> Nodi{}; // node indexes; the fourth of a triangle is -1
    int Tratteggio = 0, Nome = 0, Spessore = 0;
    double Valore = 0; // in the file, but of no use to its readers
    int Colore = 0;
};

struct ElCont {
    int Numero = 0, Dato2 = 0;
    std::string Nome;      // UTF-8
    std::vector<int> Aste; // bar names, at most MaxAsteElCont
};

struct SchedaSpessore {
    int Materiale = 0;
    double Valore = 0; // cm
};

struct SchedaSezione {
    int Materiale = 0;
};

// One job, table by table in file order. Elements with name 0 are absent.
struct Lavoro {
    std::vector<Punto> Punti;
    std::vector<Nodo> Nodi;
    std::vector<Asta> Aste;
    std::vector<Guscio> Gusci;
    std::vector<ElCont> ElementiContinui;
    std::vector<SchedaSpessore> Spessori; // card n at entry n-1
    std::vector<SchedaSezione> Sezioni;   // card n at entry n-1
    std::array<std::vector<std::string>, 3> SezioniSaltate;
    std::vector<std::pair<std::string, std::string>> TestiFinali;
    std::string Titolo; // UTF-8
};

} // namespace telva::generatore
