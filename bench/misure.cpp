// What an engineer waits for, measured on generated jobs of a tenth, a third and the whole capacity
// (argument 0, 1, 2), drawing 1000 x 650 pixels. Natively, without a window.
#include "Generatore.h"
#include "ScriviLavoro.h"
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

#include <benchmark/benchmark.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <unistd.h>

using namespace telva;
namespace fs = std::filesystem;

namespace {

const char *const kCodici[] = {"decimo", "terzo0", "piena0", "invers"};

fs::path Cartella() {
    static const fs::path cartella = "/tmp/telva_misure_" + std::to_string(::getpid());
    return cartella;
}

std::string Argomento(int taglia) {
    std::string radice = Cartella().string();
    std::replace(radice.begin(), radice.end(), '/', '\\');
    return "|diroot=" + radice + "|LAVORO=" + kCodici[taglia];
}

void Installa() {
    using namespace telva::generatore;
    std::string radice = Cartella().string();
    std::replace(radice.begin(), radice.end(), '/', '\\');
    for (int taglia = 0; taglia < 4; ++taglia) {
        Parametri p;
        p.Misura = taglia == 0 ? Taglia::Decimo : taglia == 1 ? Taglia::Terzo : Taglia::Piena;
        p.Ordine = taglia == 3 ? Nomi::Inversi : Nomi::Misti;
        ScriviInstallazione(Cartella(), kCodici[taglia], Genera(p), radice);
    }
    fs::copy_file(TELVA_RISORSE "/font/font.001", Cartella() / "progra" / "font.001",
                  fs::copy_options::overwrite_existing);
}

// The program, started on the job of that size, its drawing at the size of the targets.
void Apri(int taglia) {
    AzzeraProgramma();
    ArgomentoAvvio = Argomento(taglia);
    Avvia();
    FormTelva.Width = 1000 * 15 + 3024;
    FormTelva.Height = 650 * 15 + 2700;
    Form_Resize();
    CodFunAttiva = kAggiungi;
}

void Tutto(int tipo) {
    FormTelva.OptElem[tipo].Seleziona();
    SelezionaPerColore(kOgniColore, Segno::Messo);
}

void Lettura(benchmark::State &s) {
    Apri(static_cast<int>(s.range(0)));
    for (auto _ : s) {
        std::int16_t ok = 0;
        LeggiOpzioni();
        LeggiOpzInt();
        LeggiFont();
        LeggiSpessori();
        LeggiSezioni();
        LeggiElCont();
        LeggiStruttura(ok);
        benchmark::DoNotOptimize(ok);
    }
}

void Avvio(benchmark::State &s) {
    for (auto _ : s) {
        s.PauseTiming();
        AzzeraProgramma();
        ArgomentoAvvio = Argomento(static_cast<int>(s.range(0)));
        s.ResumeTiming();
        Avvia();
    }
}

void Ridisegno(benchmark::State &s, bool selezionato) {
    Apri(static_cast<int>(s.range(0)));
    Opzioni[kOpzPennaSel] = 4.0;
    if (selezionato)
        for (int tipo = 0; tipo < 4; ++tipo) Tutto(tipo);
    for (auto _ : s) DisegnaStruttura();
}

void RidisegnoEtichette(benchmark::State &s) {
    Apri(static_cast<int>(s.range(0)));
    for (int voce : {7, 8, 9, 24, 25}) Opzioni[voce] = 1.0;
    for (auto _ : s) DisegnaStruttura();
}

// Back to nothing selected, so that every run has the same to do.
void Deseleziona() {
    for (auto *t : {&SelNodo, &SelAsta}) std::fill_n(t->Dati(), t->Capacita(), std::int16_t{0});
    std::fill_n(SelGuscio.Dati(), SelGuscio.Capacita(), std::int16_t{0});
    std::fill_n(SelElCont.Dati(), SelElCont.Capacita(), std::int16_t{0});
}

void Rettangolo(benchmark::State &s, int tipo) {
    Apri(static_cast<int>(s.range(0)));
    FormTelva.OptElem[tipo].Seleziona();
    const RiquadroDisegno &d = FormTelva.Disegno;
    for (auto _ : s) {
        SelezionaFinestra(d.ScaleLeft, d.ScaleTop, d.ScaleWidth, -d.ScaleHeight, Segno::Messo);
        s.PauseTiming();
        Deseleziona();
        s.ResumeTiming();
    }
}

void Lista(benchmark::State &s, int tipo) {
    Apri(static_cast<int>(s.range(0)));
    FormTelva.OptElem[tipo].Seleziona();
    for (auto _ : s) {
        SelezionaElementoPerNome("1-20000", Segno::Messo);
        s.PauseTiming();
        Deseleziona();
        s.ResumeTiming();
    }
}

// A click where the middle element of the table stands.
void Diretta(benchmark::State &s, int tipo) {
    Apri(static_cast<int>(s.range(0)));
    FormTelva.OptElem[tipo].Seleziona();
    const int nodo = NumNodi / 2;
    const auto x = static_cast<float>(XNodo(nodo)), y = static_cast<float>(YNodo(nodo));
    for (auto _ : s) {
        CodSottoFun = kDiretta;
        Disegno_MouseDown(1, 0, x, y);
        s.PauseTiming();
        FinisciGesti();
        Deseleziona();
        s.ResumeTiming();
    }
}

// The pointer over nothing: every node has to be looked at.
void Coordinate(benchmark::State &s) {
    Apri(static_cast<int>(s.range(0)));
    const RiquadroDisegno &d = FormTelva.Disegno;
    const auto x = static_cast<float>(d.XDaPixel(3)), y = static_cast<float>(d.YDaPixel(3));
    for (auto _ : s) Disegno_MouseMove(0, 0, x, y);
}

void ListaCompatta(benchmark::State &s) {
    Apri(s.range(0) == 2 ? 3 : static_cast<int>(s.range(0)));
    Tutto(kNodiTipo);
    for (auto _ : s) AggiornaSelezione();
}

void Conversione(benchmark::State &s) {
    Apri(static_cast<int>(s.range(0)));
    for (int k = 0; k < kElCont; ++k) NumAsteElCont[k] = kAsteElCont;
    NumElCont = kElCont;
    for (auto _ : s) {
        s.PauseTiming();
        for (int k = 0; k < kElCont; ++k)
            for (int j = 0; j < kAsteElCont; ++j)
                AsteElCont(k, j) = NomeAsta[(k * 331 + j * 67) % std::max<int>(NumAste, 1)];
        s.ResumeTiming();
        ConvertiAsteElCont();
    }
}

void Pronto(benchmark::internal::Benchmark *b) {
    b->Arg(0)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond);
}

BENCHMARK(Lettura)->Apply(Pronto);
BENCHMARK(Avvio)->Apply(Pronto);
BENCHMARK_CAPTURE(Ridisegno, niente, false)->Apply(Pronto);
BENCHMARK_CAPTURE(Ridisegno, tutto, true)->Apply(Pronto);
BENCHMARK(RidisegnoEtichette)->Apply(Pronto);
BENCHMARK_CAPTURE(Rettangolo, nodi, 0)->Apply(Pronto);
BENCHMARK_CAPTURE(Rettangolo, aste, 1)->Apply(Pronto);
BENCHMARK_CAPTURE(Rettangolo, gusci, 2)->Apply(Pronto);
BENCHMARK_CAPTURE(Rettangolo, elementi, 3)->Apply(Pronto);
BENCHMARK_CAPTURE(Lista, nodi, 0)->Apply(Pronto);
BENCHMARK_CAPTURE(Lista, aste, 1)->Apply(Pronto);
BENCHMARK_CAPTURE(Diretta, nodi, 0)->Apply(Pronto);
BENCHMARK_CAPTURE(Diretta, aste, 1)->Apply(Pronto);
BENCHMARK_CAPTURE(Diretta, gusci, 2)->Apply(Pronto);
BENCHMARK_CAPTURE(Diretta, elementi, 3)->Apply(Pronto);
BENCHMARK(Coordinate)->Apply(Pronto);
BENCHMARK(ListaCompatta)->Apply(Pronto);
BENCHMARK(Conversione)->Apply(Pronto);

} // namespace

int main(int argc, char **argv) {
    benchmark::Initialize(&argc, argv);
    Installa();
    benchmark::RunSpecifiedBenchmarks();
    fs::remove_all(Cartella());
    return 0;
}
