#pragma once
// Test bench: the whole program without a window, on an installation in a temporary folder.

#include "platform/messaggi.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

namespace telva::prove {

struct Messaggio {
    std::string testo;
    Icona icona;
    std::string titolo;
    friend bool operator==(const Messaggio &, const Messaggio &) = default;
};
void PrintTo(const Messaggio &m, std::ostream *os);

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

// Every test starts from program start, with an empty installation folder of its own.
class Banco : public ::testing::Test {
  protected:
    Banco();
    ~Banco() override;

    // Paths with "\" as the program sees them, lower-case.
    const std::string &Radice() const { return radice_; }
    std::string Argomento() const { return "|diroot=" + radice_ + "|"; }
    void Scrivi(const std::string &relativo, const std::string &byte) const;
    std::string Leggi(const std::string &relativo) const; // "<assente>" when it is missing
    void Cancella(const std::string &relativo) const;

    // Settings, options (all labels off, aperture 8 pixels) and font; then the job's files.
    void Installa(const std::string &lavoro = "prova1") const;
    void ScriviLavoro(const LavoroProva &l, const std::string &lavoro = "prova1") const;
    void ScriviIngresso(const std::string &titolo, const std::string &lista, int tipo) const;

    // Start-up on the argument string; true when the program goes on, else `codiceFine` is set.
    bool Avvia(const std::string &argomento);
    bool Avvia() { return Avvia(Argomento()); }
    // Installa, ScriviLavoro and Avvia, which must go on; angles 0,0,0 when `frontale`.
    void Apri(const LavoroProva &l, bool frontale = true);
    // Runs anything that may end the program; true when it went on.
    bool Esegui(const std::function<void()> &evento);
    // What Enter does with this text in the answer box.
    static void Rispondi(const std::string &testo);
    static std::string Lista(); // shown selection

    std::vector<Messaggio> messaggi;
    int codiceFine = -1;

  private:
    std::string cartella_; // with "/"
    std::string radice_;
};

} // namespace telva::prove
