// The command table: menus, keys and tool bar hang together; how the program ends, by a command or
// by a fault. What the items do, the random sequences know.
#include "model/elementi.h"
#include "model/struttura.h"
#include "platform/guasto.h"
#include "sostegno/Utente.h"
#include "ui/controlli/FormTelva.h"

#include <new>
#include <stdexcept>
#include <utility>

namespace telva::prove {

struct ComandiProva : Utente {
    ModuloTelva &f = FormTelva;
    ComandiProva() { Apri(Telaio()); }

    static std::string Voci(const std::vector<VoceMenu *> &voci) {
        std::string testo;
        for (const VoceMenu *v : voci) {
            testo += (testo.empty() ? "" : " | ") + v->Caption();
            if (v->scorciatoia) testo += std::string(" Ctrl+") + v->scorciatoia;
            if (v->Checked) testo += " (on)";
        }
        return testo;
    }
};

TEST_F(ComandiProva, IMenuSonoQuelliDelManuale) {
    struct Menu {
        const VoceMenu &menu;
        const char *voci;
    };
    const Menu attesi[] = {
        {.menu = f.File, .voci = "&Aggiorna ed Esci Ctrl+G | &Esci Ctrl+E"},
        {.menu = f.Visualizza,
         .voci = "&Ottimizza Ctrl+O | &Zoom Ctrl+Z | &Sposta Ctrl+S | &Ridisegna Ctrl+R"},
        {.menu = f.Operazioni,
         .voci = "&Aggiungi Ctrl+A | &Rimuovi Ctrl+T | Ri&muovi tutto | "
                 "In&verti selezione | &Interrompi"},
        {.menu = f.Selezioni,
         .voci = "&Finestra | &Colore | Tipo &punto | Tipo &linea | Tipo &tratteggio | "
                 "&Materiale | Sezione | Spessore | Orientamento | Svincolo | Vincolo | "
                 "N&ome elemento | T&utto"},
        {.menu = f.Colore,
         .voci = "Bianco | Blu | Rosso | Verde | Giallo | Verde scuro | Magenta | Azzurro | "
                 "Arancione | Tutti"},
        {.menu = f.TipoPunto, .voci = "1 | 2 | 3 | 4 | Tutti"},
        {.menu = f.TipoLinea, .voci = "1 | 2 | 3 | 4 | 5 | Tutti"},
        {.menu = f.TipoTratt, .voci = "1 | 2 | 3 | 4 | 5 | 6 | 7 | 8 | Tutti"},
        {.menu = f.Opzioni,
         .voci = "&Visualizza Coordinate (on) | Visualizza &Assi (on) | &Barra laterale (on) | "
                 "Barra delle &icone (on) | Trappola (8)... | O&pzioni..."}};
    EXPECT_EQ(Voci(f.barraMenu), "&File | &Visualizza | &Operazioni | &Selezioni | Op&zioni");
    for (const auto &[menu, voci] : attesi) EXPECT_EQ(Voci(menu.voci), voci);
    for (const VoceMenu *v : f.voci) EXPECT_NE(v->voci.empty(), !v->Click) << v->NomeControllo();
}

TEST_F(ComandiProva, IBottoniSonoQuelliDelManuale) {
    std::string gruppi;
    for (const BottoneBarra &b : f.Toolbar1.Bottoni) {
        gruppi += (b.nuovoGruppo ? " | " : " ") + b.chiave;
        EXPECT_NE(b.suggerimento, "") << b.chiave;
    }
    EXPECT_EQ(gruppi, " AggiornaEsci Esci | Ottimizza Zoom Sposta Ridisegna | Aggiungi Rimuovi "
                      "RimuoviTutto InvertiSel Interrompi | AggiungiBarraLat");
}

TEST_F(ComandiProva, UnGuastoFinisceConUnoENonScrive) {
    NodoJAsta[0] = 25000; // no place of the nodes: the next picture comes upon it
    Tipo(kAsteTipo);
    Menu("Aggiungi");
    Menu("Tutto");
    EXPECT_EQ(codiceFine, 1);
    EXPECT_EQ(Uscita(), "<assente>");
    ASSERT_EQ(messaggi.size(), 1u);
    EXPECT_EQ(messaggi[0].gravita, Gravita::Critica);
    EXPECT_EQ(messaggi[0].titolo, "ERRORE");
}

TEST_F(ComandiProva, OgniGuastoDiceIlSuoMotivo) {
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
