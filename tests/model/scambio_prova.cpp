#include "model/scambio_cond.h"
#include "sostegno/Banco.h"
#include "startup/basCommon_cond.h"
#include "startup/direttori_cond.h"
#include "ui/controlli/FormTelva.h"

namespace telva::prove {

struct Scambio : Banco {
    Scambio() {
        DirLavoro = Radice();
        CaricaMessaggi();
    }
};

TEST_F(Scambio, LIngressoSiLeggeFinDoveArriva) {
    struct Caso {
        const char *file, *titolo, *lista;
        int tipo;
        bool tenuta = false; // the list is kept for its kind
    };
    constexpr int kNodi = 0, kAste = 1, kGusci = 2, kContinui = 3, kPareti = 4;
    const Caso casi[] = {
        {.file = "Citt\xE0, alta\r\n  1-5 , 7 \r\n0\r\n",
         .titolo = "Citt\u00E0, alta",
         .lista = "1-5 , 7",
         .tipo = kNodi,
         .tenuta = true},
        {.file = "T\n3\n1\n", .titolo = "T", .lista = "3", .tipo = kAste, .tenuta = true},
        {.file = " T \n3\n 2 , x", .titolo = " T ", .lista = "3", .tipo = kGusci, .tenuta = true},
        {.file = "T\n3\n3\n", .titolo = "T", .lista = "3", .tipo = kContinui},
        {.file = "T\n3\n4\n", .titolo = "T", .lista = "3", .tipo = kPareti},
        {.file = "T\n3\n5\n", .titolo = "T", .lista = "3", .tipo = kNodi},
        {.file = "T\n3\n-1\n", .titolo = "T", .lista = "3", .tipo = kNodi},
        {.file = "T\n3\nuno\n", .titolo = "T", .lista = "3", .tipo = kNodi},
        {.file = "T\n3\n", .titolo = "T", .lista = "3", .tipo = kNodi},
        {.file = "T", .titolo = "T", .lista = "prima", .tipo = kNodi}};
    Scrivi("TelvaOut.txt.~1", "of a program that was killed");
    for (const Caso &c : casi) {
        for (int tipo = kNodi; tipo <= kPareti; ++tipo) StrSel(tipo) = "";
        FormTelva.OptElem[kAste].Seleziona();
        Scrivi("TelvaIn.txt", c.file);
        std::string lista = "prima";
        LeggiIngresso(lista);
        EXPECT_EQ(TitoloIn, c.titolo) << c.file;
        EXPECT_EQ(lista, c.lista) << c.file;
        EXPECT_EQ(FormTelva.TipoElemento(), c.tipo) << c.file;
        for (int tipo = kNodi; tipo <= kPareti; ++tipo)
            EXPECT_EQ(StrSel(tipo), c.tenuta && tipo == c.tipo ? c.lista : "") << c.file;
    }
    EXPECT_EQ(Leggi("TelvaOut.txt.~1"), "<assente>");
}

} // namespace telva::prove
