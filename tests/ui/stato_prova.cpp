// The line of state, and what a click would take: told before it is made, and then so. How many are
// selected and hidden, and what the caller asks for, is known to the random sequences.
#include "model/elementi.h"
#include "model/opzioni_cond.h"
#include "selection/selezione.h"
#include "sostegno/Utente.h"
#include "startup/avvio.h"
#include "ui/controlli/FormTelva.h"
#include "ui/gesto.h"
#include "ui/preda.h"
#include "ui/stato.h"

#include <algorithm>
#include <functional>
#include <random>

namespace telva::prove {

struct StatoProva : Utente {
    ModuloTelva &f = FormTelva;
    RiquadroDisegno &d = FormTelva.Disegno;

    void ApriCon(int tipoRichiesto) {
        ScriviIngresso("Titolo", "", tipoRichiesto);
        LavoroProva l = Telaio();
        l.elementi.push_back({.numero = 30, .nome = "Rotto", .aste = {1, 20001}});
        Apri(l);
    }
    std::string Poi() { return ComponiStato().poi; }
};

TEST_F(StatoProva, SenzaUnaRichiestaNonSiNeDiceNulla) {
    Apri(Telaio());
    Tipo(kGusciTipo);
    EXPECT_EQ(ComponiStato().evidenza, "");
}

TEST_F(StatoProva, CheCosaSiPuoScrivere) {
    ApriCon(kAsteTipo);
    Menu("Aggiungi");
    struct Caso {
        const char *voce;
        int tipo;
        const char *atteso;
    };
    const Caso casi[] = {
        {.voce = "SchSezione", .tipo = kAsteTipo, .atteso = "sezioni presenti: 1-2"},
        {.voce = "SchSvincolo", .tipo = kAsteTipo, .atteso = "svincoli presenti: 1"},
        {.voce = "SchOrientamento", .tipo = kAsteTipo, .atteso = "orientamenti presenti: 1-3,7"},
        {.voce = "Materiale", .tipo = kAsteTipo, .atteso = "materiali presenti: 1-2"},
        {.voce = "Materiale", .tipo = kGusciTipo, .atteso = "materiali presenti: 3"},
        {.voce = "SchSpessore", .tipo = kGusciTipo, .atteso = "spessori presenti: 1"},
        {.voce = "SchVincolo", .tipo = kNodiTipo, .atteso = "vincoli presenti: 1-2"},
        {.voce = "Nome", .tipo = kAsteTipo, .atteso = "nomi presenti: da 1 a 12"},
        {.voce = "Nome", .tipo = kElContTipo, .atteso = "nomi presenti: da 10 a 20"},
        {.voce = "Nome", .tipo = kParetiTipo, .atteso = "nomi presenti: -"}, // they have no data
        {.voce = "Materiale", .tipo = kParetiTipo, .atteso = "materiali presenti: -"},
        {.voce = "SchSpessore", .tipo = kParetiTipo, .atteso = "spessori presenti: -"},
    };
    for (const Caso &caso : casi) {
        Tipo(caso.tipo);
        Menu(caso.voce);
        EXPECT_EQ(Poi(), caso.atteso) << caso.voce << ", kind " << caso.tipo;
    }
    Tipo(kAsteTipo);
    Menu("SchSezione");
    Tipo(kNodiTipo);
    EXPECT_EQ(Poi(), "La selezione per sezione non è possibile per i nodi");
    Tipo(kAsteTipo);
    Menu("SchOrientamento");
    Intervallo(Estremo::MinZ, "150"); // only the uppermost row of bars
    EXPECT_EQ(Poi(), "orientamenti presenti: 3") << "of what is shown";
    Mostra(Filtro::Aste);
    EXPECT_EQ(Poi(), "orientamenti presenti: -") << "nothing is shown";
    Menu("ZoomIn");
    EXPECT_EQ(Poi(), "clic: primo angolo; orientamenti presenti: -");
}

TEST_F(StatoProva, UnElencoLungoFinisceConUnNumeroIntero) {
    LavoroProva lungo = Telaio();
    for (int k = 0; k < 135; ++k)
        lungo.aste.push_back({.i = 1, .j = 2, .nome = 100 + k, .orientamento = 10 + 2 * k});
    for (const char *fine : {",276,278", ",276,278,…"}) { // 500 characters are shown, and no more
        Apri(lungo);
        Menu("Aggiungi");
        Tipo(kAsteTipo);
        Menu("SchOrientamento");
        EXPECT_TRUE(Poi().ends_with(fine)) << Poi();
        lungo.aste.push_back({.i = 1, .j = 2, .nome = 300, .orientamento = 280});
    }
}

TEST_F(StatoProva, UnElementoContinuoContaConLaSchedaDiTutteLeSueAste) {
    LavoroProva misto = Telaio();
    misto.elementi = {{.numero = 10, .nome = "", .aste = {1, 2}},
                      {.numero = 20, .nome = "", .aste = {3, 7}},
                      {.numero = 30, .nome = "", .aste = {7, 8}}};
    Apri(misto);
    Menu("Aggiungi");
    Tipo(kElContTipo);
    Menu("SchOrientamento");
    EXPECT_EQ(Poi(), "orientamenti presenti: 1,7");
    Intervallo(Estremo::MaxZ, "150"); // of 30 only one bar is left
    EXPECT_EQ(Poi(), "orientamenti presenti: 1");
    Menu("Nome");
    EXPECT_EQ(Poi(), "nomi presenti: da 10 a 20");
}

TEST_F(StatoProva, CheCosaFarebbeUnClic) {
    ApriCon(kNodiTipo);
    EXPECT_EQ(Poi(), "Ctrl+A aggiunge, Ctrl+T rimuove");
    Muovi(0, 0);
    EXPECT_EQ(Poi(), "Ctrl+A aggiunge, Ctrl+T rimuove") << "without a function nothing is picked";
    Menu("Aggiungi");
    struct Caso {
        int tipo;
        float x, y;
        const char *detto;
        std::size_t linee = 0, cerchi = 0; // of the outline
        const char *selezionato = "selezionato";
    };
    const Caso casi[] = {
        {.tipo = kNodiTipo, .x = 0, .y = 0, .detto = "nodo 1", .cerchi = 1},
        {.tipo = kNodiTipo, .x = 100, .y = 100, .detto = "nodo 5, vincolo 1", .cerchi = 1},
        {.tipo = kNodiTipo, .x = 50, .y = 50, .detto = "apre una finestra"},
        {.tipo = kAsteTipo,
         .x = 50,
         .y = 0,
         .detto = "asta 1, sezione 1, materiale 1",
         .linee = 1,
         .selezionato = "selezionata"},
        {.tipo = kGusciTipo,
         .x = 150,
         .y = 50,
         .detto = "guscio 2, spessore 1, materiale 3",
         .linee = 4},
        {.tipo = kElContTipo,
         .x = 50,
         .y = 0,
         .detto = "elemento continuo 10 - Trave bassa",
         .linee = 2},
        {.tipo = kParetiTipo, .x = 50, .y = 0, .detto = "apre una finestra"},
    };
    for (const auto &[tipo, x, y, detto, linee, cerchi, selezionato] : casi) {
        SCOPED_TRACE(detto);
        Tipo(tipo);
        Muovi(x, y);
        EXPECT_EQ(Poi(), std::string("clic: ") + detto);
        EXPECT_EQ(d.Anteprima().linee.size(), linee);
        EXPECT_EQ(d.Anteprima().cerchi.size(), cerchi);
        if (linee + cerchi == 0) continue;
        Clic(x, y);
        EXPECT_EQ(Poi(), std::string("clic: ") + detto + ", già " + selezionato);
        EXPECT_TRUE(d.Anteprima().Vuota()) << "nothing would change";
    }
    f.dpi = 192; // there a node is twice as large
    Tipo(kNodiTipo);
    Menu("RimTutto");
    Menu("Ottimizza");
    Muovi(0, 0);
    EXPECT_EQ(d.Anteprima().cerchi.at(0).raggio, 2 * OpzioneNumero(kOpzRaggioNodo));
    f.dpi = 96;
}

// What the next click takes is outlined while it would take it, and no longer.
TEST_F(StatoProva, IlContornoSpariscePerOgniAltroUsoDelPuntatore) {
    constexpr const char *kAltrove = "clic su un'asta, o menu Selezioni; Esc termina";
    struct Caso {
        std::function<void()> fai;
        const char *detto;
    };
    const Caso casi[] = {
        {[&] { Passo("Distratta()", f.Distratta); }, kAltrove}, // a key, a menu, a box
        {[&] { Passo("MouseLeave()", d.MouseLeave); }, kAltrove},
        {[&] { Menu("ZoomIn"); }, "clic: primo angolo"},
        {[&] { Menu("Finestra"); }, "clic: primo angolo"},
        {[&] { Clic(50, 50); }, "clic: angolo opposto"}, // on nothing
        {[&] { Menu("Sposta"); }, "clic: punto da spostare"},
        {[&] { Menu("Sposta"), Clic(20, 20); }, "clic: dove portarlo"},
        {[&] { PremiCentrale(50, 0); }, ""},
    };
    for (const Caso &caso : casi) {
        AzzeraProgramma();
        ApriCon(kAsteTipo);
        Menu("Aggiungi");
        Muovi(50, 0);
        EXPECT_EQ(d.Anteprima().linee.at(0), (Sagoma::Linea{.x1 = 0, .y1 = 0, .x2 = 100, .y2 = 0}));
        caso.fai();
        EXPECT_EQ(Poi(), caso.detto);
        EXPECT_TRUE(d.Anteprima().Vuota()) << caso.detto;
    }
    Passo("MouseLeave()", d.MouseLeave);
    EXPECT_EQ(f.LabCoord.Caption(), "") << "the pointer has left";
}

TEST_F(StatoProva, LEtichettaSiNascondeSenzaPosto) {
    ApriCon(kGusciTipo);
    const auto visibile = [&](double larghezza) {
        Ridimensiona(larghezza, 11400);
        return f.LabStato.Visible();
    };
    EXPECT_TRUE(visibile(6615));
    EXPECT_EQ(f.LabStato.Width, 900) << "60 pixels at 100 %";
    EXPECT_FALSE(visibile(6614));
    Menu("VisCoord");
    EXPECT_TRUE(visibile(5550)) << "the room of the coordinates is free";
    Tipo(kAsteTipo);
    EXPECT_EQ(f.LabStato.Evidenza(), "richiesti: gusci");
    EXPECT_EQ(f.LabStato.Caption(), "richiesti: gusci; nessuna asta selezionata\r\n"
                                    "Ctrl+A aggiunge, Ctrl+T rimuove");
}

TEST_F(StatoProva, CioCheSiVedePrimaECioCheSiPrende) {
    LavoroProva lavoro = Telaio();
    lavoro.nodi.push_back({0, 5}); // a second node of that name
    lavoro.elementi.push_back({30, "Senza aste", {}});
    lavoro.elementi[0].nome = std::string(100000, 'x'); // it is cut
    Apri(lavoro);
    const auto selezionati = [](int tipo) {
        const Elementi &e = ElementiDi(tipo);
        std::vector<int> stati;
        for (int i = 0; i < e.numero; ++i) stati.push_back(e.selezionati[i]);
        return stati;
    };
    std::mt19937 sorte(7);
    const auto posto = [&] {
        const auto fra = std::uniform_int_distribution(-40, 240)(sorte);
        return static_cast<float>(fra) / (sorte() % 2 ? 1.0f : 5.0f);
    };
    for (int giro = 0; giro < 400; ++giro) {
        const int tipo = giro % kTipiElemento;
        const bool aggiunge = giro / 5 % 3 != 0;
        Menu(aggiunge ? "Aggiungi" : "Rimuovi");
        Tipo(tipo);
        const float x = posto(), y = posto();
        Muovi(x, y);
        EXPECT_LT(Poi().size(), 200u);
        const EffettoClic effetto = ClicSulDisegno();
        const ElementiPresi preda = Preda();
        std::vector<int> attesi = selezionati(tipo);
        for (const int i : preda.elementi) attesi[static_cast<std::size_t>(i)] = aggiunge ? 1 : 0;
        EXPECT_EQ(d.Anteprima().Vuota(), attesi == selezionati(tipo)) << x << ", " << y;
        Clic(x, y);
        EXPECT_EQ(selezionati(tipo), attesi) << x << ", " << y;
        EXPECT_EQ(effetto, PrimoAngolo == 1 ? EffettoClic::ApreFinestra : EffettoClic::Elemento)
            << "kind " << tipo << " at " << x << ", " << y;
        EXPECT_EQ(preda.elementi.empty(), effetto != EffettoClic::Elemento);
    }
}

TEST_F(StatoProva, ValeAncheQuandoLaVistaSiMuoveSottoIlPuntatore) {
    Apri(Telaio());
    Menu("Aggiungi");
    Tipo(kNodiTipo);
    Muovi(100, 100);
    EXPECT_EQ(Poi(), "clic: nodo 5, vincolo 1");
    const double px = d.XPixel(100), py = d.YPixel(100);
    Menu("Sposta");
    Clic(100, 100);
    Clic(0, 100); // the pointer rests where node 4 stood, and node 5 comes there
    EXPECT_EQ(Poi(), "clic: nodo 5, vincolo 1");
    const auto torna = [&] {
        Muovi(static_cast<float>(d.XDaPixel(px)), static_cast<float>(d.YDaPixel(py)));
    };
    torna();
    EXPECT_EQ(Poi(), "clic: nodo 6, vincolo 1");
    for (const int tasto : {kTastoDestra, kTastoSinistra, kTastoSu, kTastoGiu, kTastoPiu}) {
        Tasto(tasto);
        const std::string detto = Poi();
        torna();
        EXPECT_EQ(Poi(), detto) << "as a move to the same pixel says, after " << tasto;
    }
}

} // namespace telva::prove
