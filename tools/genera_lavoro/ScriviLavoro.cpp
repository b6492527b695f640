#include "ScriviLavoro.h"

#include "platform/testo.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <fstream>
#include <iomanip>
#include <sstream>
#include <stdexcept>
#include <utility>

namespace telva::generatore {
namespace {

namespace fs = std::filesystem;

class Testo {
  public:
    Testo(std::initializer_list<std::string> righe = {}) {
        flusso_ << std::fixed << std::setprecision(2);
        for (const std::string &riga : righe) Riga(riga);
    }

    // One line of all these, UTF-8 or numbers; those with a fraction get two decimals.
    template <class... Parti>
    void Riga(const Parti &...parti) {
        (flusso_ << ... << parti) << "\r\n";
    }

    // Right-aligned integers on one line.
    void Interi(std::initializer_list<int> valori) {
        for (const int valore : valori) flusso_ << std::setw(7) << valore;
        Riga();
    }

    void Coordinate(const Posizione &p) {
        for (const int valore : {p.X, p.Y, p.Z}) flusso_ << std::setw(11) << valore / 100.0;
        Riga();
    }

    void Conteggio(int quanti, const char *cosa = "") { Riga(std::setw(7), quanti, ' ', cosa); }

    void Scrivi(const fs::path &file) const {
        std::ofstream uscita(file, std::ios::binary | std::ios::trunc);
        uscita << AWindows1252(flusso_.str());
        uscita.close();
        if (!uscita) throw std::runtime_error("impossibile scrivere " + file.string());
    }
    void ScriviSeManca(const fs::path &file) const {
        if (!fs::exists(file)) Scrivi(file);
    }

  private:
    std::ostringstream flusso_;
};

struct Spessore {
    int Materiale;
    double Valore; // cm
};
constexpr std::array<Spessore, 8> kSpessori{
    {{5, 22}, {1, 15}, {2, 30}, {2, 25}, {3, 0.8}, {6, 0.6}, {1, 20}, {3, 1}}};
// Of the section cards: 1, 2 concretes, 3 steel, 4 glued timber.
constexpr std::array<int, 12> kMateriali{2, 1, 1, 1, 3, 3, 4, 4, 3, 1, 1, 1};

// Cards repeat with small differences storey by storey, as far as the table reaches.
template <std::size_t Tipi, class T>
int Scheda(int tipo, const std::array<T, Tipi> &, int piano, int schede) {
    if (tipo == 0) return 0;
    const int passo = static_cast<int>(Tipi), varianti = std::max(1, schede / passo);
    return (tipo - 1 + passo * (std::max(0, piano - 1) % varianti)) % schede + 1;
}

void AggiungiGeometria(Testo &t, const Lavoro &l) {
    t.Conteggio(l.Punti.Quanti(), "punti");
    for (const Posizione &p : l.Punti) t.Coordinate(p);
    t.Conteggio(l.Nodi.Quanti(), "nodi");
    for (const auto &[punto, tipo, nome] : l.Nodi) {
        t.Interi({punto, tipo.Punto, tipo.Colore});
        t.Interi({nome, tipo.Vincolo});
    }
    t.Conteggio(l.Aste.Quanti(), "aste");
    for (const auto &[i, j, tipo, dove, nome] : l.Aste) {
        const int sezione = Scheda(tipo.Sezione, kMateriali, dove.Piano, l.Quante.Sezioni);
        t.Interi({i, j, tipo.Linea, tipo.Colore});
        t.Interi({nome, sezione, tipo.Svincolo, tipo.Orientamento, dove.Piano, tipo.Svincolo > 0});
    }
    t.Conteggio(l.Gusci.Quanti(), "gusci");
    for (const auto &[nodi, tipo, piano, nome] : l.Gusci) {
        const int spessore = Scheda(tipo.Spessore, kSpessori, piano, l.Quante.Spessori);
        const double altro = 0.25 * (piano % 4); // of no use to the readers
        t.Interi({nodi[0], nodi[1], nodi[2], nodi[3]});
        t.Riga(' ', tipo.Tratteggio, ' ', nome, ' ', spessore, ' ', altro, ' ', tipo.Colore);
    }
}

Testo Struttura(const Lavoro &l) {
    // Sections that Telva passes over: loads, load cases, combinations.
    static const Fila<Fila<std::string>> saltate{
        {"1 1 0.00 -2.50", "2 1 0.00 -4.00", "3 2 1.50 0.00"},
        {"1, \"permanente\", 1.3", "2, \"variabile, cat. A\", 1.5"},
        {"Combinazione 1: stato limite ultimo", "", "Combinazione 2: sisma (più torsione)", "0"}};
    Testo t{"Struttura - Release 4.0"};
    AggiungiGeometria(t, l);
    for (const Fila<std::string> &sezione : saltate) {
        t.Conteggio(sezione.Quanti());
        for (const std::string &riga : sezione) t.Riga(riga);
    }
    t.Conteggio(l.Quante.Testi, "testi");
    for (int n = 1; n <= l.Quante.Testi; ++n) {
        t.Riga("Nota ", n, ": quota più alta, foglio ", 1 + n % 7);
        t.Riga(n, " 0 1");
    }
    return t;
}

// The envelopes of the bars: beams hang below their axis.
Testo Ingombri(const Lavoro &l) {
    Testo t;
    for (const Asta &asta : l.Aste)
        for (const int nodo : {asta.I, asta.J}) {
            Posizione p = l.Punti[l.Nodi[nodo].Punto];
            if (asta.Tipo.Trave) p.Z -= 2500;
            if (asta.Nome > 0) t.Coordinate(p);
        }
    return t;
}

Testo Spessori(int schede) {
    Testo t;
    t.Conteggio(schede);
    for (int n = 0; n < schede; ++n) {
        auto [materiale, valore] = kSpessori[static_cast<std::size_t>(n) % kSpessori.size()];
        if (valore > 1) valore += 0.5 * (n / static_cast<int>(kSpessori.size()));
        t.Riga(n + 1, ", ", materiale, ", 0, ", valore, ", 1");
    }
    return t;
}

// Card number, shape and material, then four groups of three: sides, areas and inertias. The
// concretes change place from one set of cards to the next.
Testo Sezioni(int schede) {
    constexpr int kTipi = static_cast<int>(kMateriali.size());
    Testo t;
    t.Conteggio(schede);
    for (int n = 1; n <= schede; ++n) {
        const auto [variante, tipo] = std::div(n - 1, kTipi);
        const int materiale = kMateriali[static_cast<std::size_t>(tipo)];
        const bool altroCalcestruzzo = materiale <= 2 && variante % 2 == 1;
        const int lato = 20 + 5 * (n % 9);
        t.Interi({n, n % 4, altroCalcestruzzo ? 3 - materiale : materiale});
        for (const int fattore : {1, 2, 3, 4}) t.Interi({lato, lato * fattore, 0});
    }
    return t;
}

Testo ElementiContinui(const Lavoro &l) {
    constexpr int kPerRiga = 15;
    Testo t;
    t.Conteggio(l.ElementiContinui.Quanti());
    int numero = 0;
    for (const ElCont &e : l.ElementiContinui) {
        t.Riga(e.Nome, ", ", numero++ % 5 + 1, ", \"", e.Testo, '"');
        t.Conteggio(e.Aste.Quanti());
        std::string riga;
        for (int a = 0; a < e.Aste.Quanti(); ++a) {
            riga += ' ' + std::to_string(l.Aste[e.Aste[a]].Nome);
            if ((a + 1) % kPerRiga == 0 || a + 1 == e.Aste.Quanti())
                t.Riga(std::exchange(riga, {}));
        }
    }
    return t;
}

// Representation options, entry 0 first: sizes in pixels or cm, ticks 1 or 0. Selected elements are
// drawn with a pen of 5, which shows beside the outline of a shell that lies over a bar.
Testo Opzioni() {
    return {"1", "1", "1", "5", "0", "1", "2", "0", "0", "0", "20", "25", "1", "8", "1",
            "1", "1", "1", "1", "1", "1", "1", "1", "1", "0", "1",  "0",  "0", "0", "0"};
}

Testo OpzioniInterne() {
    return {"8|PC1|apertura della trappola [pixel]", "40|PC2|lunghezza degli assi [pixel]",
            "12|PC3|altezza delle lettere degli assi [pixel]", "0|PC4|libero, non è usato",
            "5|PC5|colore degli assi"};
}

} // namespace

void ScriviLavoro(const fs::path &cartellaLavoro, const Lavoro &lavoro) {
    fs::create_directories(cartellaLavoro);
    Struttura(lavoro).Scrivi(cartellaLavoro / "STRUTTUR.STR");
    Ingombri(lavoro).Scrivi(cartellaLavoro / "Ingombri.tmp");
    Spessori(lavoro.Quante.Spessori).Scrivi(cartellaLavoro / "spessori");
    Sezioni(lavoro.Quante.Sezioni).Scrivi(cartellaLavoro / "sezioni_");
    ElementiContinui(lavoro).Scrivi(cartellaLavoro / "el_conti.tmp");
    Testo({lavoro.Titolo, "", "1"}).Scrivi(cartellaLavoro / "TelvaIn.txt"); // no bar is selected
}

void ScriviInstallazione(const fs::path &cartella, const std::string &codice, const Lavoro &lavoro,
                         const std::string &radice) {
    for (const char *nome : {"impostazioni", "progra", "custom"})
        fs::create_directories(cartella / nome);
    const std::string lavori = radice + "\\lavori";
    // Only the first value of the file counts: a comma must stand in quotes.
    const bool virgola = lavori.find(',') != std::string::npos;
    Testo({virgola ? '"' + lavori + '"' : lavori}).Scrivi(cartella / "impostazioni" / "dirlav");
    Testo({codice}).ScriviSeManca(cartella / "impostazioni" / "lavoro");
    Opzioni().ScriviSeManca(cartella / "custom" / "TelOpzio.txt");
    OpzioniInterne().ScriviSeManca(cartella / "custom" / "TelOpInt.txt");
    ScriviLavoro(cartella / "lavori" / codice, lavoro);
}

} // namespace telva::generatore
