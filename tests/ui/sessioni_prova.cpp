// Whole sessions, from the caller's exchange file to the one that it gets back.
#include "model/struttura.h"
#include "platform/guasto.h"
#include "selection/selezione.h"
#include "sostegno/Utente.h"
#include "startup/avvio.h"
#include "ui/controlli/FormTelva.h"

#include <new>
#include <stdexcept>

namespace telva::prove {

struct SessioniProva : Utente {
    ModuloTelva &f = FormTelva;
    // A start from the beginning, with this list handed in.
    void Ricomincia(int tipo, const std::string &lista) {
        AzzeraProgramma();
        DimenticaPassi();
        ScriviIngresso("Titolo", lista, tipo);
        Apri(Telaio());
    }
};

// Only what stands at height 100 and more is shown: the rest keeps what it was.
TEST_F(SessioniProva, CioCheENascostoRestaComEra) {
    struct Caso {
        int tipo;
        std::string ingresso, aggiunto, rimosso, invertito;
    };
    const Caso casi[] = {
        {.tipo = kNodiTipo,
         .ingresso = "2,5,8",
         .aggiunto = "2,4-9",
         .rimosso = "2",
         .invertito = "2,4,6-7,9"},
        {.tipo = kAsteTipo,
         .ingresso = "1,5",
         .aggiunto = "1,1,3-6,8,10,12",
         .rimosso = "1,1",
         .invertito = "1,1,3-4,6,8,10,12"},
        {.tipo = kGusciTipo,
         .ingresso = "1,4",
         .aggiunto = "1,1,3-4",
         .rimosso = "1,1",
         .invertito = "1,1,3"},
        {.tipo = kElContTipo,
         .ingresso = "10,20",
         .aggiunto = "10,10,20",
         .rimosso = "10,10",
         .invertito = "10,10"},
        {.tipo = kParetiTipo, .ingresso = "", .aggiunto = " ", .rimosso = " ", .invertito = " "}};
    for (const Caso &c : casi) {
        struct Modo {
            const char *funzione, *selezione, *elenco;
            const std::string &atteso;
        };
        const Modo modi[] = {
            {.funzione = "Aggiungi", .selezione = "Tutto", .elenco = "", .atteso = c.aggiunto},
            {.funzione = "Aggiungi", .selezione = "Nome", .elenco = "1-99", .atteso = c.aggiunto},
            {.funzione = "Rimuovi", .selezione = "Tutto", .elenco = "", .atteso = c.rimosso},
            {.funzione = "Rimuovi", .selezione = "Nome", .elenco = "1-99", .atteso = c.rimosso},
            {.funzione = "RimTutto", .selezione = "", .elenco = "", .atteso = c.rimosso},
            {.funzione = "Inverti", .selezione = "", .elenco = "", .atteso = c.invertito}};
        for (const Modo &m : modi) {
            Ricomincia(c.tipo, c.ingresso);
            Intervallo(Estremo::MinZ, "100");
            Menu(m.funzione);
            if (*m.selezione) Menu(m.selezione);
            if (*m.elenco) Elenco(m.elenco);
            Menu("Salva");
            EXPECT_EQ(codiceFine, 0);
            EXPECT_EQ(Uscita(), m.atteso + "\r\n") << "kind " << c.tipo;
        }
    }
}

TEST_F(SessioniProva, InterrompiDaOvunqueLasciaLaSelezione) {
    Ricomincia(kNodiTipo, "0");
    for (VoceMenu *voce : f.voci) {
        if (voce == &f.Salva || voce == &f.Esci) continue;
        Menu("Aggiungi");
        if (!voce->Enabled) continue;
        SCOPED_TRACE(voce->NomeControllo());
        Menu(voce->NomeControllo());
        Clic(50, 50);
        const std::string lista = Lista();
        Esc();
        Invio();
        EXPECT_EQ(Lista(), lista);
        EXPECT_EQ(Funzione(), "");
        EXPECT_EQ(SottoFunzione(), "");
        EXPECT_EQ(f.Domanda.Caption(), "");
        EXPECT_EQ(Gesto(), "");
        EXPECT_EQ(Elastici(), "");
        EXPECT_EQ(SelezioniPossibili(), "");
        EXPECT_FALSE(f.Risposta.Enabled);
        EXPECT_FALSE(f.Interrompi.Enabled);
        EXPECT_EQ(f.Disegno.MousePointer(), Puntatore::Predefinito);
        EXPECT_EQ(Detto(), "");
    }
}

TEST_F(SessioniProva, EsciNonScrive) {
    Ricomincia(kNodiTipo, "1-3");
    Menu("Inverti");
    Menu("Esci");
    EXPECT_EQ(codiceFine, 0);
    EXPECT_EQ(Uscita(), "<assente>");
}

// --- faults

TEST_F(SessioniProva, UnGuastoFinisceConUnoENonScrive) {
    Apri(Telaio());
    NodoJAsta[0] = 25000; // no place of the nodes: the next picture comes upon it
    Tipo(kAsteTipo);
    Menu("Aggiungi");
    Menu("Tutto");
    EXPECT_EQ(codiceFine, 1);
    EXPECT_EQ(Uscita(), "<assente>");
    ASSERT_EQ(messaggi.size(), 1u);
    EXPECT_EQ(messaggi[0].icona, Icona::Critica);
    EXPECT_EQ(messaggi[0].titolo, "ERRORE");
}

TEST_F(SessioniProva, UnGuastoAllAvvioFinisceConUno) {
    LavoroProva lavoro = Telaio();
    lavoro.aste.push_back({.i = 0, .j = 25000, .nome = 13});
    Installa();
    ScriviLavoro(lavoro);
    EXPECT_FALSE(Avvia());
    EXPECT_EQ(codiceFine, 1);
    EXPECT_EQ(messaggi.size(), 1u);
}

TEST_F(SessioniProva, OgniGuastoDiceIlSuoMotivo) {
    struct Caso {
        std::function<void()> evento;
        const char *detto;
    };
    const Caso casi[] = {
        {.evento = [] { throw Guasto("Fuori tabella"); }, .detto = "ERRORE: Fuori tabella"},
        {.evento = [] { throw std::bad_alloc(); }, .detto = "ERRORE: Memoria insufficiente"},
        {.evento = [] { throw std::runtime_error("rotto"); },
         .detto = "ERRORE: Errore interno: rotto"}};
    for (const auto &[evento, detto] : casi) {
        codiceFine = -1;
        EXPECT_FALSE(Esegui(evento));
        EXPECT_EQ(codiceFine, 1);
        ASSERT_EQ(messaggi.size(), 1u);
        EXPECT_EQ(messaggi[0].icona, Icona::Critica);
        EXPECT_EQ(Detto(), detto);
    }
}

} // namespace telva::prove
