// Window selection: what lies wholly inside, the margin of one unit, what is hidden.
#include "selection/selezione.h"
#include "sostegno/Utente.h"

namespace telva::prove {

struct FinestraProva : Utente {
    struct Angolo {
        float x, y;
    };

    FinestraProva() {
        LavoroProva lavoro = Telaio();
        lavoro.gusci.push_back({.nodi = {4, 5, 7, -1}, .nome = 5});
        lavoro.gusci.push_back({.nodi = {4, 5, 7, 0}, .nome = 6}); // node 0 is one like any other
        lavoro.elementi.push_back({.numero = 30, .nome = "Senza aste", .aste = {}});
        Apri(lavoro);
    }
    void Finestra(Angolo da, Angolo a) {
        Menu("Finestra");
        Clic(da.x, da.y);
        Clic(a.x, a.y);
    }
};

TEST_F(FinestraProva, PrendeSoloCioCheStaTuttoDentro) {
    struct Caso {
        int tipo;
        Angolo da, a;
        const char *presi;
        const char *maxX = "200"; // what lies further is hidden
    };
    const Angolo centro{99, 99}, alto{201, 201}, fuori{-8, 208}, basso{208, -8};
    const Caso casi[] = {
        {.tipo = kNodiTipo, .da = centro, .a = alto, .presi = "5-6,8-9"},
        {.tipo = kNodiTipo, .da = alto, .a = centro, .presi = "5-6,8-9"},
        {.tipo = kNodiTipo, .da = {-8, -8}, .a = {-1, -1}, .presi = "1,1"},
        {.tipo = kNodiTipo, .da = centro, .a = alto, .presi = "5,8", .maxX = "100"},
        {.tipo = kAsteTipo, .da = centro, .a = alto, .presi = "4,6,10,12"},
        {.tipo = kAsteTipo, .da = {10, 201}, .a = {190, -1}, .presi = "9-10"},
        {.tipo = kAsteTipo, .da = centro, .a = alto, .presi = "10", .maxX = "100"},
        {.tipo = kGusciTipo, .da = centro, .a = alto, .presi = "4-5"},
        {.tipo = kGusciTipo, .da = {-1, -1}, .a = alto, .presi = "1,1-6"},
        {.tipo = kGusciTipo, .da = {-1, -1}, .a = alto, .presi = "1,1,3", .maxX = "100"},
        {.tipo = kElContTipo, .da = {-8, 8}, .a = basso, .presi = "10,10,30"},
        {.tipo = kElContTipo, .da = fuori, .a = basso, .presi = "10,10,20,30"},
        {.tipo = kElContTipo, .da = fuori, .a = basso, .presi = "30", .maxX = "100"},
        {.tipo = kParetiTipo, .da = fuori, .a = basso, .presi = ""}};
    for (const Caso &c : casi) {
        DimenticaPassi();
        Tipo(c.tipo);
        Intervallo(Estremo::MaxX, "200");
        Menu("RimTutto");
        Intervallo(Estremo::MaxX, c.maxX);
        Menu("Aggiungi");
        Finestra(c.da, c.a);
        EXPECT_EQ(Lista(), c.presi);
    }
}

TEST_F(FinestraProva, IlMargineEDiUnUnitaOltreIlBordo) {
    Menu("Aggiungi");
    Finestra({101, 199}, {199, 101}); // the nodes are exactly one unit outside
    EXPECT_EQ(Lista(), "5-6,8-9");
    Menu("RimTutto");
    Finestra({101.01F, 198.99F}, {198.99F, 101.01F});
    EXPECT_EQ(Lista(), "");
    for (const auto &[da, a] : {std::pair{Angolo{101.01F, 199}, Angolo{199, 101}}, // one side each
                                {Angolo{101, 198.99F}, Angolo{199, 101}}}) {
        Finestra(da, a);
        EXPECT_NE(Lista(), "5-6,8-9");
        Menu("RimTutto");
    }
}

TEST_F(FinestraProva, AggiungeECancella) {
    Menu("Aggiungi");
    Finestra({-8, -8}, {-1, -1});
    Finestra({-8, 8}, {208, -8});
    EXPECT_EQ(Lista(), "1,1-3");
    Menu("Rimuovi");
    Finestra({99, 8}, {101, -8});
    EXPECT_EQ(Lista(), "1,1,3");
}

TEST_F(FinestraProva, IlComandoRestaFinoAlProssimo) {
    Menu("Aggiungi");
    Finestra({-8, -8}, {-1, -1});
    EXPECT_EQ(SottoFunzione(), "Seleziona per finestra");
    Clic(208, 208); // the next rectangle, without the command
    Clic(199, 199);
    EXPECT_EQ(Lista(), "1,1,9");
}

} // namespace telva::prove
