#include "ScriviLavoro.h"

#include "platform/testo.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <fstream>
#include <stdexcept>

namespace telva::generatore {
namespace {

namespace fs = std::filesystem;

std::string Allineato(const std::string &testo, std::size_t larghezza) {
    return std::string(std::max(larghezza, testo.size()) - testo.size(), ' ') + testo;
}

// A number of whole hundredths, written without the C library's locale.
std::string Decimale(double valore) {
    const long long centesimi = std::llround(valore * 100);
    std::string cifre = std::to_string(std::abs(centesimi));
    if (cifre.size() < 3) cifre.insert(0, 3 - cifre.size(), '0');
    cifre.insert(cifre.size() - 2, 1, '.');
    return (centesimi < 0 ? "-" : "") + cifre;
}

class Testo {
  public:
    Testo() = default;
    Testo(std::initializer_list<std::string> righe) {
        for (const std::string &riga : righe) Riga(riga);
    }

    void Riga(const std::string &utf8) { Contenuto += AWindows1252(utf8) + "\r\n"; }

    // Right-aligned integers on one line.
    void Interi(std::initializer_list<int> valori) {
        std::string riga;
        for (const int valore : valori) riga += ' ' + Allineato(std::to_string(valore), 6);
        Riga(riga);
    }

    void Coordinate(const Punto &p) {
        std::string riga;
        for (const double valore : {p.X, p.Y, p.Z}) riga += ' ' + Allineato(Decimale(valore), 10);
        Riga(riga);
    }

    void Conteggio(std::size_t quanti, const std::string &cosa = "") {
        Riga(' ' + Allineato(std::to_string(quanti), 6) + ' ' + cosa);
    }

    void Scrivi(const fs::path &file, bool soloSeManca = false) const {
        if (soloSeManca && fs::exists(file)) return;
        std::ofstream uscita(file, std::ios::binary | std::ios::trunc);
        uscita.write(Contenuto.data(), static_cast<std::streamsize>(Contenuto.size()));
        uscita.close();
        if (!uscita) throw std::runtime_error("impossibile scrivere " + file.string());
    }

  private:
    std::string Contenuto;
};

void AggiungiGeometria(Testo &t, const Lavoro &l) {
    t.Conteggio(l.Punti.size(), "punti");
    for (const Punto &p : l.Punti) t.Coordinate(p);
    t.Conteggio(l.Nodi.size(), "nodi");
    for (const Nodo &n : l.Nodi) {
        t.Interi({n.IndicePunto, n.TipoPunto, n.Colore});
        t.Interi({n.Nome, n.Vincolo});
    }
    t.Conteggio(l.Aste.size(), "aste");
    for (const Asta &a : l.Aste) {
        t.Interi({a.NodoI, a.NodoJ, a.TipoLinea, a.Colore});
        t.Interi({a.Nome, a.Sezione, a.Svincolo, a.Orientamento, a.Dato5, a.Dato6});
    }
    t.Conteggio(l.Gusci.size(), "gusci");
    for (const Guscio &g : l.Gusci) {
        t.Interi({g.Nodi[0], g.Nodi[1], g.Nodi[2], g.Nodi[3]});
        t.Riga(' ' + std::to_string(g.Tratteggio) + ' ' + std::to_string(g.Nome) + ' ' +
               std::to_string(g.Spessore) + ' ' + Decimale(g.Valore) + ' ' +
               std::to_string(g.Colore));
    }
}

Testo Struttura(const Lavoro &l) {
    Testo t{"Struttura - Release 4.0"};
    AggiungiGeometria(t, l);
    for (const auto &sezione : l.SezioniSaltate) {
        t.Conteggio(sezione.size());
        for (const std::string &riga : sezione) t.Riga(riga);
    }
    t.Conteggio(l.TestiFinali.size(), "testi");
    for (const auto &[primo, secondo] : l.TestiFinali) {
        t.Riga(primo);
        t.Riga(secondo);
    }
    return t;
}

Testo Ingombri(const Lavoro &l) {
    Testo t;
    for (const Asta &a : l.Aste) {
        if (a.Nome <= 0) continue;
        t.Coordinate(a.IngI);
        t.Coordinate(a.IngJ);
    }
    return t;
}

Testo Spessori(const Lavoro &l) {
    Testo t;
    t.Conteggio(l.Spessori.size());
    int numero = 0;
    for (const SchedaSpessore &s : l.Spessori)
        t.Riga(std::to_string(++numero) + ", " + std::to_string(s.Materiale) + ", 0, " +
               Decimale(s.Valore) + ", 1");
    return t;
}

// Card number, shape and material, then four groups of three: sides, areas and inertias.
Testo Sezioni(const Lavoro &l) {
    Testo t;
    t.Conteggio(l.Sezioni.size());
    int numero = 0;
    for (const SchedaSezione &s : l.Sezioni) {
        const int lato = 20 + 5 * (++numero % 9);
        t.Interi({numero, numero % 4, s.Materiale});
        for (const int fattore : {1, 2, 3, 4}) t.Interi({lato, lato * fattore, 0});
    }
    return t;
}

Testo ElementiContinui(const Lavoro &l) {
    constexpr std::size_t PerRiga = 15;
    Testo t;
    t.Conteggio(l.ElementiContinui.size());
    for (const ElCont &e : l.ElementiContinui) {
        t.Riga(std::to_string(e.Numero) + ", " + std::to_string(e.Dato2) + ", \"" + e.Nome + '"');
        t.Conteggio(e.Aste.size());
        for (std::size_t da = 0; da < e.Aste.size(); da += PerRiga) {
            std::string riga;
            for (std::size_t a = da; a < std::min(e.Aste.size(), da + PerRiga); ++a)
                riga += ' ' + std::to_string(e.Aste[a]);
            t.Riga(riga);
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

void ScriviImpostazioni(const fs::path &cartella, const std::string &codice,
                        const std::optional<std::string> &radice) {
    fs::create_directories(cartella);
    std::string vista = radice.value_or(kRadicePredefinita);
    while (!vista.empty() && vista.back() == '\\') vista.pop_back();
    const std::string lavori = vista + "\\lavori";
    // Only the first value of the file counts: a comma must stand in quotes.
    const bool virgola = lavori.find(',') != std::string::npos;
    Testo({virgola ? '"' + lavori + '"' : lavori}).Scrivi(cartella / "dirlav", !radice);
    Testo({codice}).Scrivi(cartella / "lavoro", true);
}

} // namespace

void ScriviLavoro(const fs::path &cartellaLavoro, const Lavoro &lavoro) {
    fs::create_directories(cartellaLavoro);
    Struttura(lavoro).Scrivi(cartellaLavoro / "STRUTTUR.STR");
    Ingombri(lavoro).Scrivi(cartellaLavoro / "Ingombri.tmp");
    Spessori(lavoro).Scrivi(cartellaLavoro / "spessori");
    Sezioni(lavoro).Scrivi(cartellaLavoro / "sezioni_");
    ElementiContinui(lavoro).Scrivi(cartellaLavoro / "el_conti.tmp");
    Testo({lavoro.Titolo, "", "1"}).Scrivi(cartellaLavoro / "TelvaIn.txt"); // no bar is selected
}

fs::path ScriviInstallazione(const fs::path &cartella, const std::string &codice,
                             const Lavoro &lavoro, const std::optional<std::string> &radice) {
    ScriviImpostazioni(cartella / "impostazioni", codice, radice);
    fs::create_directories(cartella / "progra");
    fs::create_directories(cartella / "custom");
    Opzioni().Scrivi(cartella / "custom" / "TelOpzio.txt", true);
    OpzioniInterne().Scrivi(cartella / "custom" / "TelOpInt.txt", true);
    fs::path cartellaLavoro = cartella / "lavori" / codice;
    ScriviLavoro(cartellaLavoro, lavoro);
    return cartellaLavoro;
}

} // namespace telva::generatore
