// Typed lists: the parser, what is refused, which elements a list marks.
#include "selection/schede_sel.h"
#include "selection/selezione.h"
#include "sostegno/Utente.h"
#include "ui/controlli/FormTelva.h"

namespace telva::prove {

using Numeri = std::vector<std::int16_t>;

TEST(ElencoProva, UnElencoSiLeggeNumeroPerNumero) {
    struct Caso {
        const char *testo;
        Numeri numeri;
    };
    const Caso casi[] = {{.testo = "", .numeri = {}},
                         {.testo = "3,7,12", .numeri = {3, 7, 12}},
                         {.testo = "5-8", .numeri = {5, 6, 7, 8}},
                         {.testo = "1,4-6,9", .numeri = {1, 4, 5, 6, 9}},
                         {.testo = "8-5", .numeri = {}},
                         {.testo = "7-", .numeri = {}},
                         {.testo = "7-,3", .numeri = {3}},
                         {.testo = "-3", .numeri = {0, 1, 2, 3}},
                         {.testo = "-", .numeri = {0}},
                         {.testo = "1-3-5", .numeri = {3, 4, 5}},
                         {.testo = "2,,4", .numeri = {2, 0, 4}},
                         {.testo = "2,", .numeri = {2, 0}},
                         {.testo = "abc", .numeri = {0}},
                         {.testo = " 12 ", .numeri = {12}},
                         {.testo = "1 2", .numeri = {12}},
                         {.testo = "2.9", .numeri = {2}},
                         {.testo = "12x,3", .numeri = {12, 3}},
                         {.testo = "3,1-3", .numeri = {3, 1, 2, 3}},
                         {.testo = "1,-1", .numeri = {1, 0, 1}},
                         {.testo = "32767", .numeri = {32767}}};
    for (const auto &[testo, numeri] : casi) {
        Numeri letti;
        EXPECT_EQ(LeggiLista(testo, kCapacitaSchede, letti), EsitoLista::Riuscita) << testo;
        EXPECT_EQ(letti, numeri) << testo;
    }
}

TEST(ElencoProva, UnElencoTroppoLungoOFuoriDaiLimitiSiRifiuta) {
    struct Caso {
        const char *testo;
        int capacita;
        EsitoLista esito;
    };
    const Caso casi[] = {
        {.testo = "1-100", .capacita = kCapacitaSchede, .esito = EsitoLista::Riuscita},
        {.testo = "0-100", .capacita = kCapacitaSchede, .esito = EsitoLista::Troppi},
        {.testo = "1-32767", .capacita = kCapacitaSchede, .esito = EsitoLista::Troppi},
        {.testo = "1-20000", .capacita = kCapacitaNomi, .esito = EsitoLista::Riuscita},
        {.testo = "0-20000", .capacita = kCapacitaNomi, .esito = EsitoLista::Troppi},
        {.testo = "32768", .capacita = kCapacitaSchede, .esito = EsitoLista::FuoriLimiti},
        {.testo = "1-32768", .capacita = kCapacitaSchede, .esito = EsitoLista::FuoriLimiti},
        {.testo = "99999-1", .capacita = kCapacitaSchede, .esito = EsitoLista::FuoriLimiti},
        {.testo = "3,1e9", .capacita = kCapacitaSchede, .esito = EsitoLista::FuoriLimiti}};
    for (const auto &[testo, capacita, esito] : casi) {
        Numeri letti;
        EXPECT_EQ(LeggiLista(testo, capacita, letti), esito) << testo;
    }
}

// --- what is asked, and what a kind answers

constexpr const char *kTroppi = "ERRORE: La stringa di selezione comprende troppi elementi";

struct SchedeProva : Utente {
    ModuloTelva &f = FormTelva;
    SchedeProva() { Apri(Telaio()); }

    // The message to a list for this kind; a list of too many numbers shows that it has been read.
    std::string Risposta(int tipo, const std::string &elenco) {
        Tipo(tipo);
        Elenco(elenco);
        return Detto();
    }
    static std::string Impossibile(const std::string &scheda, const std::string &elementi) {
        return "INFORMAZIONE: La selezione per " + scheda + " non è possibile per " + elementi;
    }
};

TEST_F(SchedeProva, OgniProprietaValePerISuoiTipi) {
    struct Caso {
        const char *voce, *titolo;
        std::vector<std::string> risposte; // of nodes, bars, shells, continuous elements, walls
    };
    const std::string letta = kTroppi;
    const auto no = [](const char *scheda, const char *elementi) {
        return Impossibile(scheda, elementi);
    };
    const Caso casi[] = {
        {.voce = "Materiale",
         .titolo = "materiale",
         .risposte = {no("materiale", "i nodi"), letta, letta, letta, letta}},
        {.voce = "SchSezione",
         .titolo = "sezione",
         .risposte = {no("sezione", "i nodi"), letta, no("sezione", "i gusci"), letta, ""}},
        {.voce = "SchSpessore",
         .titolo = "spessore",
         .risposte = {no("spessore", "i nodi"), no("spessore", "le aste"), letta,
                      no("spessore", "gli elementi continui"), ""}},
        {.voce = "SchOrientamento",
         .titolo = "orientamento",
         .risposte = {no("orientamento", "i nodi"), letta, no("orientamento", "i gusci"), letta,
                      ""}},
        {.voce = "SchSvincolo",
         .titolo = "svincolo",
         .risposte = {no("svincolo", "i nodi"), letta, no("svincolo", "i gusci"),
                      no("svincolo", "gli elementi continui"), ""}},
        {.voce = "SchVincolo",
         .titolo = "vincolo",
         .risposte = {letta, no("vincolo", "le aste"), no("vincolo", "i gusci"),
                      no("vincolo", "gli elementi continui"), ""}}};
    for (const Caso &c : casi) {
        Tipo(kParetiTipo); // for walls every item can be chosen
        Menu("Aggiungi");
        Menu(c.voce);
        EXPECT_EQ(SottoFunzione(), std::string("Seleziona per ") + c.titolo);
        EXPECT_EQ(f.Domanda.Caption(), std::string("Inserire i numeri delle schede di ") +
                                           c.titolo + " e premere INVIO");
        for (int tipo = kNodiTipo; tipo <= kParetiTipo; ++tipo)
            EXPECT_EQ(Risposta(tipo, "1-101"), c.risposte[static_cast<std::size_t>(tipo)])
                << "kind " << tipo;
    }
}

TEST_F(SchedeProva, PerNomeSiPossonoDareVentimilaNumeri) {
    Menu("Aggiungi");
    Menu("Nome");
    EXPECT_EQ(SottoFunzione(), "Seleziona per nome elemento");
    EXPECT_EQ(f.Domanda.Caption(), "Inserire i nomi degli elementi e premere INVIO");
    for (int tipo = kNodiTipo; tipo <= kParetiTipo; ++tipo) {
        EXPECT_EQ(Risposta(tipo, "1-20000"), "");
        EXPECT_EQ(Risposta(tipo, "1-20001"), kTroppi);
    }
}

TEST_F(SchedeProva, SiPrendonoGliElementiConLaScheda) {
    struct Caso {
        int tipo;
        const char *voce, *elenco, *presi;
    };
    // Telaio: sections 1 and 2 are of materials 1 and 2, thicknesses 1 and 2 of materials 3 and 4.
    const Caso casi[] = {
        {.tipo = kNodiTipo, .voce = "SchVincolo", .elenco = "1-2", .presi = "4-9"},
        {.tipo = kNodiTipo, .voce = "Nome", .elenco = "2,4-5", .presi = "2,4-5"},
        {.tipo = kAsteTipo, .voce = "Materiale", .elenco = "1", .presi = "1,1-2,5-6"},
        {.tipo = kAsteTipo, .voce = "SchSezione", .elenco = "2", .presi = "3-4,7-12"},
        {.tipo = kAsteTipo, .voce = "SchOrientamento", .elenco = "3,7", .presi = "5-12"},
        {.tipo = kAsteTipo, .voce = "SchSvincolo", .elenco = "1", .presi = "2,4,6"},
        {.tipo = kGusciTipo, .voce = "Materiale", .elenco = "4", .presi = "3-4"},
        {.tipo = kGusciTipo, .voce = "SchSpessore", .elenco = "1", .presi = "1,1-2"},
        {.tipo = kElContTipo, .voce = "Materiale", .elenco = "2", .presi = "20"},
        {.tipo = kElContTipo, .voce = "SchSezione", .elenco = "1", .presi = "10,10"},
        {.tipo = kElContTipo, .voce = "SchOrientamento", .elenco = "1-2", .presi = "10,10,20"},
        {.tipo = kElContTipo, .voce = "Nome", .elenco = "20", .presi = "20"},
        {.tipo = kParetiTipo, .voce = "Nome", .elenco = "1", .presi = ""}};
    for (const Caso &c : casi) {
        DimenticaPassi();
        Tipo(c.tipo);
        Menu("RimTutto");
        Menu("Aggiungi");
        Menu(c.voce);
        Elenco(c.elenco);
        EXPECT_EQ(Lista(), c.presi);
        EXPECT_EQ(Detto(), "");
        Menu("Rimuovi");
        Menu(c.voce);
        Elenco(c.elenco);
        EXPECT_EQ(Lista(), "");
    }
}

TEST_F(SchedeProva, UnElencoRifiutatoLasciaLaSelezione) {
    Tipo(kAsteTipo);
    Menu("Aggiungi");
    Menu("Nome");
    Elenco("2,5-6");
    for (const auto &[elenco, detto] :
         {std::pair<const char *, const char *>{"1-20001", kTroppi},
          {"1,32768", "ERRORE: Numero fuori dai limiti ammessi (da -32768 a 32767)"}}) {
        Elenco(elenco);
        EXPECT_EQ(Detto(), detto);
        EXPECT_EQ(Lista(), "2,5-6");
    }
    Esc();
    Invio();
    EXPECT_EQ(Lista(), "2,5-6");
    EXPECT_EQ(Detto(), "") << "nothing is asked any more";
}

} // namespace telva::prove
