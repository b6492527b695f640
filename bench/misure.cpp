// What an engineer waits for, on generated jobs, without a window: the same program in every build,
// native, 64 and 32 bit.
//   misure --cartella DIR [--solo PREFIX] [--durata MILLISECONDS]
// The jobs go into DIR. Prints one line "name job picture median processor", in milliseconds, for
// each operation: a tenth, a third and the whole capacity at 1000x650, and the whole capacity in
// larger pictures too. The second figure is the mean time of the processor: on a busy machine it is
// the one to compare.
#include "Generatore.h"
#include "ScriviLavoro.h"
#include "model/elementi.h"
#include "model/legfont_cond.h"
#include "model/leggstr_cond.h"
#include "model/opzioni_cond.h"
#include "model/struttura.h"
#include "model/tabelle_cond.h"
#include "platform/messaggi.h"
#include "selection/attributi_sel.h"
#include "selection/finestra_sel.h"
#include "selection/schede_sel.h"
#include "selection/selezione.h"
#include "selection/trappola.h"
#include "startup/avvio.h"
#include "startup/direttori_cond.h"
#include "ui/Disegno_gestori.h"
#include "ui/FormTelva_gestori.h"
#include "ui/controlli/FormTelva.h"
#include "ui/gesto.h"
#include "ui/vista_gestori.h"
#include "view/FunzDisegno.h"
#include "view/inquadra.h"
#include "view/proiezione.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#ifdef _WIN32
#include <windows.h>
#endif

using namespace telva;
namespace fs = std::filesystem;

namespace {

struct Lavoro {
    const char *codice;
    generatore::Taglia taglia;
    generatore::Nomi nomi;
};
constexpr Lavoro kDecimo{"decimo", generatore::Taglia::Decimo, generatore::Nomi::Misti};
constexpr Lavoro kTerzo{"terzo0", generatore::Taglia::Terzo, generatore::Nomi::Misti};
constexpr Lavoro kPieno{"piena0", generatore::Taglia::Piena, generatore::Nomi::Misti};
constexpr Lavoro kInverso{"invers", generatore::Taglia::Piena, generatore::Nomi::Inversi};

struct Quadro {
    int larghezza, altezza;
};
constexpr Quadro kQuadri[] = {{1000, 650}, {2560, 1440}, {3840, 2160}};

fs::path cartella;
std::string solo;
double durata = 300; // milliseconds, of each operation

// The folder of the jobs, as the program sees it.
std::string Radice() {
    std::string radice = fs::absolute(cartella).string();
    std::ranges::replace(radice, '/', '\\');
    return radice;
}

std::string Argomento(const Lavoro &lavoro) {
    return "|diroot=" + Radice() + "|LAVORO=" + lavoro.codice;
}

void Installa() {
    for (const auto &[codice, taglia, nomi] : {kDecimo, kTerzo, kPieno, kInverso})
        generatore::ScriviInstallazione(cartella, codice, generatore::Genera(taglia, nomi),
                                        Radice());
    const fs::path font = cartella / "progra" / "font.001";
    fs::remove(font); // not every library can overwrite
    fs::copy_file(TELVA_RISORSE "/font/font.001", font);
}

// The program, started on that job, its drawing of that size.
void Apri(const Lavoro &lavoro, const Quadro &quadro) {
    AzzeraProgramma();
    ArgomentoAvvio = Argomento(lavoro);
    Avvia();
    FormTelva.Width = quadro.larghezza * 15 + 3024;
    FormTelva.Height = quadro.altezza * 15 + 2700;
    Form_Resize();
    CodFunAttiva = kAggiungi;
}

using Passo = std::function<void()>;
constexpr auto kNiente = [] {};

double Millisecondi(const Passo &passo) {
    const auto inizio = std::chrono::steady_clock::now();
    passo();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - inizio)
        .count();
}

// Milliseconds that the processor has worked for this program.
double Processore() {
#ifdef _WIN32
    FILETIME nascita{}, fine{}, sistema{}, utente{};
    GetProcessTimes(GetCurrentProcess(), &nascita, &fine, &sistema, &utente);
    const auto decimi = [](const FILETIME &t) {
        return static_cast<double>(t.dwHighDateTime) * 4294967296.0 + t.dwLowDateTime;
    };
    return (decimi(sistema) + decimi(utente)) / 10000;
#else
    return 1000.0 * static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
#endif
}

struct Tempi {
    double mediana, processore;
};

// As many rounds as fit into the time, at least seven; what `prima` does counts only for the
// processor.
Tempi Cronometra(const Passo &prima, const Passo &fai) {
    std::vector<double> tempi;
    prima();
    fai(); // the first one finds cold caches and makes tables that stay
    const double inizio = Processore();
    for (double somma = 0; somma < durata || tempi.size() < 7; somma += tempi.back()) {
        prima();
        tempi.push_back(Millisecondi(fai));
    }
    const double lavoro = (Processore() - inizio) / static_cast<double>(tempi.size());
    std::sort(tempi.begin(), tempi.end());
    return {tempi[tempi.size() / 2], lavoro};
}

// One job in one picture, and the operations on it.
class Banco {
  public:
    Banco(const Lavoro &lavoro, const Quadro &quadro) : lavoro_(lavoro), quadro_(quadro) {}

    // Starts the program anew, then `prepara`; counts what `fai` takes, after `prima` each time.
    void Misura(const std::string &nome, const Passo &prepara, const Passo &fai,
                const Passo &prima = kNiente) const {
        if (!nome.starts_with(solo)) return;
        Apri(lavoro_, quadro_);
        prepara();
        const Tempi tempi = Cronometra(prima, fai);
        std::printf("%s %s %dx%d %.4f %.4f\n", nome.c_str(), lavoro_.codice, quadro_.larghezza,
                    quadro_.altezza, tempi.mediana, tempi.processore);
        std::fflush(stdout);
    }
    // The same for each of the first kinds of elements, which is chosen before.
    void MisuraTipi(const std::string &nome, int tipi, const Passo &fai,
                    const Passo &prima = kNiente) const {
        constexpr const char *kTipi[] = {"nodi", "aste", "gusci", "elementi"};
        for (int tipo = 0; tipo < tipi; ++tipo)
            Misura(
                nome + "/" + kTipi[tipo], [=] { FormTelva.OptElem[tipo].Seleziona(); }, fai, prima);
    }
    void Letture() const;
    void Ridisegni() const;
    void Selezioni() const;
    void Puntatore() const;
    void Anteprime() const;
    void Elastici() const;
    void Mezzo() const;

  private:
    const Lavoro &lavoro_;
    const Quadro &quadro_;
};

void Tutto(int tipo) {
    FormTelva.OptElem[tipo].Seleziona();
    SelezionaPerColore(kOgniColore, Segno::Messo);
}

void SelezionaTutto() {
    Opzioni[kOpzPennaSel] = 4.0;
    for (int tipo = 0; tipo < 4; ++tipo) Tutto(tipo);
}

// Back to nothing selected, so that every round has the same to do.
void Deseleziona() {
    for (const int tipo : {kNodiTipo, kAsteTipo, kGusciTipo, kElContTipo}) {
        const Elementi &e = ElementiDi(tipo);
        for (int i = 0; i < e.numero; ++i) e.selezionati[i] = 0;
    }
}

void LeggiTutto() {
    std::int16_t ok = 0;
    LeggiOpzioni();
    LeggiOpzInt();
    LeggiFont();
    LeggiSpessori();
    LeggiSezioni();
    LeggiElCont();
    LeggiStruttura(ok);
    if (ok != 1) std::fprintf(stderr, "misure: the job cannot be read\n");
}

// The left button, at a place of the drawing.
void Premi(double x, double y) {
    Disegno_MouseDown(1, 0, static_cast<float>(x), static_cast<float>(y));
}

// The pointer, to a pixel.
void Punta(double x, double y) {
    const RiquadroDisegno &d = FormTelva.Disegno;
    Disegno_MouseMove(0, 0, static_cast<float>(d.XDaPixel(x)), static_cast<float>(d.YDaPixel(y)));
}

// A move of the mouse to a pixel, as the window does it: the event, the line of state, and what
// stands over the picture then.
void Muovi(double x, double y) {
    RiquadroDisegno &d = FormTelva.Disegno;
    Punta(x, y);
    FormTelva.DopoEvento();
    d.ComponiElastici(d.ZoneElastici(), [](const Superficie &, const ZonaPixel &) {});
}

void Banco::Letture() const {
    Misura("Lettura", kNiente, LeggiTutto);
    Misura("Avvio", kNiente, Avvia, [&] {
        AzzeraProgramma();
        ArgomentoAvvio = Argomento(lavoro_);
    });
}

void Banco::Ridisegni() const {
    Misura("Ridisegno/niente", kNiente, DisegnaStruttura);
    Misura("Ridisegno/tutto", SelezionaTutto, DisegnaStruttura);
    Misura(
        "Ridisegno/etichette",
        [] {
            for (const int voce :
                 {kOpzTestiNodi, kOpzTestiAste, kOpzTestiGusci, kOpzTestiElCont, kOpzNomeElCont})
                Opzioni[voce] = 1.0;
        },
        DisegnaStruttura);
}

void Banco::Selezioni() const {
    const RiquadroDisegno &d = FormTelva.Disegno;
    MisuraTipi(
        "Rettangolo", 4,
        [&] {
            SelezionaFinestra(d.ScaleLeft, d.ScaleTop, d.ScaleWidth, -d.ScaleHeight, Segno::Messo);
        },
        Deseleziona);
    MisuraTipi(
        "Lista", 2, [] { SelezionaElementoPerNome("1-20000", Segno::Messo); }, Deseleziona);
    // A click where the middle element of the table stands.
    MisuraTipi(
        "Diretta", 4, [] { Premi(XNodo(NumNodi / 2), YNodo(NumNodi / 2)); },
        [] {
            FinisciGesti();
            Deseleziona();
            CodSottoFun = kDiretta;
        });
}

void Banco::Puntatore() const {
    // Over nothing: every node has to be looked at.
    Misura("Coordinate", kNiente, [] { Punta(3, 3); });
}

// In direct pick, to and fro over the middle of the picture, where most elements lie.
void Banco::Anteprime() const {
    int mossa = 0;
    MisuraTipi(
        "Anteprima", 4, [&] { Muovi(quadro_.larghezza / 2 + ++mossa % 40, quadro_.altezza / 2); },
        [] { CodSottoFun = kDiretta; });
}

// A move of the second corner, or of the second point, from one side of the picture to the other.
void Banco::Elastici() const {
    const RiquadroDisegno &d = FormTelva.Disegno;
    int mossa = 0;
    const auto muovi = [&] {
        const int scarto = ++mossa % 2 * 7;
        Muovi(quadro_.larghezza - 20 - scarto, quadro_.altezza - 20 - scarto);
    };
    const auto premi = [&] { Premi(d.XDaPixel(10), d.YDaPixel(10)); };
    Misura(
        "Elastici/rettangolo",
        [&] {
            Finestra_Click();
            premi();
        },
        muovi);
    Misura(
        "Elastici/linea",
        [&] {
            Sposta_Click();
            premi();
        },
        muovi);
}

// What no drawing can do without: clearing the picture, moving its pixels once, and the bare lines.
void Banco::Mezzo() const {
    RiquadroDisegno &d = FormTelva.Disegno;
    Misura("Mezzo/pulizia", kNiente, [&] { d.Cls(); });
    std::vector<std::uint32_t> copia;
    const Superficie &s = d.Immagine();
    Misura(
        "Mezzo/copia", [&] { copia.assign(s.Riga(0), s.Riga(s.Altezza())); },
        [&] { std::memcpy(copia.data(), s.Riga(0), copia.size() * sizeof copia[0]); });
    struct Segmento {
        Pixel a, b;
    };
    std::vector<Segmento> segmenti;
    const auto aggiungi = [&](int i, int j) {
        bool fuori = false;
        segmenti.push_back(
            {d.InPixel(XNodo(i), YNodo(i), fuori), d.InPixel(XNodo(j), YNodo(j), fuori)});
    };
    const auto raccogli = [&] {
        segmenti.clear();
        for (int b = 0; b < NumAste; ++b) aggiungi(NodoIAsta[b], NodoJAsta[b]);
        for (int g = 0; g < NumGusci; ++g) {
            const auto angoli = static_cast<std::size_t>(NumeroAngoli(g));
            for (std::size_t c = 0; c < angoli; ++c)
                aggiungi(NodiGuscio[g][c], NodiGuscio[g][(c + 1) % angoli]);
        }
    };
    Misura("Mezzo/linee", raccogli, [&] {
        for (const auto &[a, b] : segmenti) d.Immagine().Linea(a, b, 0xFFFFFF);
    });
    Misura("Mezzo/linee4", raccogli, [&] {
        for (const auto &[a, b] : segmenti) d.Immagine().LineaLarga(a, b, 4, 0xFFFFFF);
    });
}

void ListaEConversione() {
    for (const Lavoro &lavoro : {kDecimo, kTerzo, kInverso})
        Banco(lavoro, kQuadri[0])
            .Misura(
                "ListaCompatta", [] { Tutto(kNodiTipo); }, AggiornaSelezione);
    Banco(kPieno, kQuadri[0])
        .Misura(
            "Conversione",
            [] {
                for (int k = 0; k < kElCont; ++k) NumAsteElCont[k] = kAsteElCont;
                NumElCont = kElCont;
            },
            ConvertiAsteElCont,
            [] {
                for (int k = 0; k < kElCont; ++k)
                    for (int j = 0; j < kAsteElCont; ++j)
                        AsteElCont(k, j) = NomeAsta[(k * 331 + j * 67) % std::max<int>(NumAste, 1)];
            });
}

bool LeggiParole(int numero, char **parole) {
    for (int i = 1; i + 1 < numero; i += 2) {
        const std::string chiave = parole[i];
        if (chiave == "--cartella")
            cartella = parole[i + 1];
        else if (chiave == "--solo")
            solo = parole[i + 1];
        else if (chiave == "--durata")
            durata = std::atof(parole[i + 1]);
        else
            return false;
    }
    return numero % 2 == 1 && !cartella.empty();
}

} // namespace

int main(int numero, char **parole) {
    if (!LeggiParole(numero, parole)) {
        std::fprintf(stderr, "misure --cartella DIR [--solo PREFIX] [--durata MILLISECONDS]\n");
        return 2;
    }
    Installa();
    for (const Lavoro &lavoro : {kDecimo, kTerzo, kPieno}) {
        const Banco banco(lavoro, kQuadri[0]);
        banco.Letture();
        banco.Ridisegni();
        banco.Selezioni();
        banco.Puntatore();
    }
    ListaEConversione();
    for (const Quadro &quadro : kQuadri) {
        const Banco banco(kPieno, quadro);
        if (quadro.larghezza != kQuadri[0].larghezza) {
            banco.Ridisegni();
            banco.Selezioni();
            banco.Puntatore();
        }
        banco.Anteprime();
        banco.Elastici();
        banco.Mezzo();
    }
    return 0;
}
