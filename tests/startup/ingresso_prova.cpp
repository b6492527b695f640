// The incoming list: one that cannot be taken leaves nothing selected, on the screen and in the
// answer.
#include "model/elementi.h"
#include "sostegno/Utente.h"
#include "ui/controlli/FormTelva.h"

namespace telva::prove {

struct CasoRifiuto {
    const char *lista;
    int tipo;
    const char *detto;
};

constexpr const char *kFuori = "ERRORE: Numero fuori dai limiti ammessi (da -32768 a 32767)";
constexpr const char *kTroppi = "ERRORE: La stringa di selezione comprende troppi elementi";

const CasoRifiuto kRifiuti[] = {
    {.lista = "7,40000", .tipo = kNodiTipo, .detto = kFuori},
    {.lista = "1-3,-40000", .tipo = kAsteTipo, .detto = kFuori},
    {.lista = "1-20001", .tipo = kGusciTipo, .detto = kTroppi},
    {.lista = "10,40000", .tipo = kElContTipo, .detto = kFuori},
    {.lista = "1,40000", .tipo = kParetiTipo, .detto = kFuori},
};

TEST_F(Utente, UnElencoInIngressoRifiutatoNonSelezionaNulla) {
    for (const CasoRifiuto &caso : kRifiuti) {
        Installa();
        ScriviLavoro(Telaio());
        ScriviIngresso("", caso.lista, caso.tipo);
        ASSERT_TRUE(Avvia()) << caso.lista;
        EXPECT_EQ(Detto(), caso.detto) << caso.lista;
        EXPECT_EQ(FormTelva.TipoElemento(), caso.tipo) << caso.lista;
        EXPECT_EQ(Lista(), "") << caso.lista;
        Esegui([&] { Menu("Salva"); });
        EXPECT_EQ(Uscita(), " \r\n") << caso.lista;
    }
}

} // namespace telva::prove
