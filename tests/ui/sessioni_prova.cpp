// The end of a session by a fault.
#include "model/elementi.h"
#include "model/struttura.h"
#include "platform/guasto.h"
#include "sostegno/Utente.h"

#include <new>
#include <stdexcept>
#include <utility>

namespace telva::prove {

struct SessioniProva : Utente {};

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
        EXPECT_FALSE(Esegui(evento));
        EXPECT_EQ(std::exchange(codiceFine, -1), 1);
        EXPECT_EQ(Detto(), detto);
    }
}

} // namespace telva::prove
