// The command table: menu tree, tool bar and keys, as the user manual lists them.
#include "sostegno/Utente.h"
#include "ui/controlli/FormTelva.h"

#include <algorithm>

namespace telva::prove {
namespace {

struct Voce {
    const char *menu; // "" = on the menu bar
    const char *nome;
    const char *testo;
    char scorciatoia = 0; // with Ctrl
    bool spuntata = false;
    bool operator==(const Voce &altra) const {
        return std::string(menu) == altra.menu && std::string(nome) == altra.nome &&
               std::string(testo) == altra.testo && scorciatoia == altra.scorciatoia &&
               spuntata == altra.spuntata;
    }
    friend void PrintTo(const Voce &v, std::ostream *os) {
        *os << v.menu << " > " << v.nome << " \"" << v.testo << "\"";
        if (v.scorciatoia) *os << " Ctrl+" << v.scorciatoia;
        if (v.spuntata) *os << " ticked";
    }
};

const Voce kVoci[] = {
    {.menu = "", .nome = "File", .testo = "&File"},
    {.menu = "File", .nome = "Salva", .testo = "&Aggiorna ed Esci", .scorciatoia = 'G'},
    {.menu = "File", .nome = "Esci", .testo = "&Esci", .scorciatoia = 'E'},
    {.menu = "", .nome = "Visualizza", .testo = "&Visualizza"},
    {.menu = "Visualizza", .nome = "Ottimizza", .testo = "&Ottimizza", .scorciatoia = 'O'},
    {.menu = "Visualizza", .nome = "ZoomIn", .testo = "&Zoom", .scorciatoia = 'Z'},
    {.menu = "Visualizza", .nome = "Sposta", .testo = "&Sposta", .scorciatoia = 'S'},
    {.menu = "Visualizza", .nome = "Ridis", .testo = "&Ridisegna", .scorciatoia = 'R'},
    {.menu = "", .nome = "Operazioni", .testo = "&Operazioni"},
    {.menu = "Operazioni", .nome = "Aggiungi", .testo = "&Aggiungi", .scorciatoia = 'A'},
    {.menu = "Operazioni", .nome = "Rimuovi", .testo = "&Rimuovi", .scorciatoia = 'T'},
    {.menu = "Operazioni", .nome = "RimTutto", .testo = "Ri&muovi tutto"},
    {.menu = "Operazioni", .nome = "Inverti", .testo = "In&verti selezione"},
    {.menu = "Operazioni", .nome = "Interrompi", .testo = "&Interrompi"},
    {.menu = "", .nome = "Selezioni", .testo = "&Selezioni"},
    {.menu = "Selezioni", .nome = "Finestra", .testo = "&Finestra"},
    {.menu = "Selezioni", .nome = "Colore", .testo = "&Colore"},
    {.menu = "Colore", .nome = "Bianco", .testo = "Bianco"},
    {.menu = "Colore", .nome = "Blu", .testo = "Blu"},
    {.menu = "Colore", .nome = "Rosso", .testo = "Rosso"},
    {.menu = "Colore", .nome = "Verde", .testo = "Verde"},
    {.menu = "Colore", .nome = "Giallo", .testo = "Giallo"},
    {.menu = "Colore", .nome = "VerdeScuro", .testo = "Verde scuro"},
    {.menu = "Colore", .nome = "Magenta", .testo = "Magenta"},
    {.menu = "Colore", .nome = "Azzurro", .testo = "Azzurro"},
    {.menu = "Colore", .nome = "Arancione", .testo = "Arancione"},
    {.menu = "Colore", .nome = "TuttiCol", .testo = "Tutti"},
    {.menu = "Selezioni", .nome = "TipoPunto", .testo = "Tipo &punto"},
    {.menu = "TipoPunto", .nome = "TipoPt1", .testo = "1"},
    {.menu = "TipoPunto", .nome = "TipoPt2", .testo = "2"},
    {.menu = "TipoPunto", .nome = "TipoPt3", .testo = "3"},
    {.menu = "TipoPunto", .nome = "TipoPt4", .testo = "4"},
    {.menu = "TipoPunto", .nome = "TuttiPt", .testo = "Tutti"},
    {.menu = "Selezioni", .nome = "TipoLinea", .testo = "Tipo &linea"},
    {.menu = "TipoLinea", .nome = "TipoLn1", .testo = "1"},
    {.menu = "TipoLinea", .nome = "TipoLn2", .testo = "2"},
    {.menu = "TipoLinea", .nome = "TipoLn3", .testo = "3"},
    {.menu = "TipoLinea", .nome = "TipoLn4", .testo = "4"},
    {.menu = "TipoLinea", .nome = "TipoLn5", .testo = "5"},
    {.menu = "TipoLinea", .nome = "TuttiLn", .testo = "Tutti"},
    {.menu = "Selezioni", .nome = "TipoTratt", .testo = "Tipo &tratteggio"},
    {.menu = "TipoTratt", .nome = "TipoTr1", .testo = "1"},
    {.menu = "TipoTratt", .nome = "TipoTr2", .testo = "2"},
    {.menu = "TipoTratt", .nome = "TipoTr3", .testo = "3"},
    {.menu = "TipoTratt", .nome = "TipoTr4", .testo = "4"},
    {.menu = "TipoTratt", .nome = "TipoTr5", .testo = "5"},
    {.menu = "TipoTratt", .nome = "TipoTr6", .testo = "6"},
    {.menu = "TipoTratt", .nome = "TipoTr7", .testo = "7"},
    {.menu = "TipoTratt", .nome = "TipoTr8", .testo = "8"},
    {.menu = "TipoTratt", .nome = "TuttiTr", .testo = "Tutti"},
    {.menu = "Selezioni", .nome = "Materiale", .testo = "&Materiale"},
    {.menu = "Selezioni", .nome = "SchSezione", .testo = "Sezione"},
    {.menu = "Selezioni", .nome = "SchSpessore", .testo = "Spessore"},
    {.menu = "Selezioni", .nome = "SchOrientamento", .testo = "Orientamento"},
    {.menu = "Selezioni", .nome = "SchSvincolo", .testo = "Svincolo"},
    {.menu = "Selezioni", .nome = "SchVincolo", .testo = "Vincolo"},
    {.menu = "Selezioni", .nome = "Nome", .testo = "N&ome elemento"},
    {.menu = "Selezioni", .nome = "Tutto", .testo = "T&utto"},
    {.menu = "", .nome = "Opzioni", .testo = "Op&zioni"},
    {.menu = "Opzioni", .nome = "VisCoord", .testo = "&Visualizza Coordinate", .spuntata = true},
    {.menu = "Opzioni", .nome = "VisAssi", .testo = "Visualizza &Assi", .spuntata = true},
    {.menu = "Opzioni", .nome = "BarraLat", .testo = "&Barra laterale", .spuntata = true},
    {.menu = "Opzioni", .nome = "BarraIcone", .testo = "Barra delle &icone", .spuntata = true},
    {.menu = "Opzioni", .nome = "Trappola", .testo = "Trappola (8)..."},
    {.menu = "Opzioni", .nome = "Rappresentazione", .testo = "O&pzioni..."}};

// The tree as it is, menu by menu, in its order.
void Raccogli(const char *menu, const std::vector<VoceMenu *> &voci, std::vector<Voce> &tutte) {
    for (const VoceMenu *v : voci) {
        tutte.push_back({.menu = menu,
                         .nome = v->NomeControllo().c_str(),
                         .testo = v->Caption().c_str(),
                         .scorciatoia = v->scorciatoia,
                         .spuntata = v->Checked});
        Raccogli(v->NomeControllo().c_str(), v->voci, tutte);
    }
}

struct Bottone {
    int gruppo;
    const char *chiave;
    const char *suggerimento;
    const char *voce; // whose handler it runs
};

const Bottone kBottoni[] = {
    {.gruppo = 1, .chiave = "AggiornaEsci", .suggerimento = "Aggiorna ed esci", .voce = "Salva"},
    {.gruppo = 1, .chiave = "Esci", .suggerimento = "Esci", .voce = "Esci"},
    {.gruppo = 2, .chiave = "Ottimizza", .suggerimento = "Ottimizza", .voce = "Ottimizza"},
    {.gruppo = 2, .chiave = "Zoom", .suggerimento = "Zoom", .voce = "ZoomIn"},
    {.gruppo = 2, .chiave = "Sposta", .suggerimento = "Sposta", .voce = "Sposta"},
    {.gruppo = 2, .chiave = "Ridisegna", .suggerimento = "Ridisegna", .voce = "Ridis"},
    {.gruppo = 3, .chiave = "Aggiungi", .suggerimento = "Aggiungi selezione", .voce = "Aggiungi"},
    {.gruppo = 3, .chiave = "Rimuovi", .suggerimento = "Rimuovi selezione", .voce = "Rimuovi"},
    {.gruppo = 3, .chiave = "RimuoviTutto", .suggerimento = "Rimuovi tutto", .voce = "RimTutto"},
    {.gruppo = 3, .chiave = "InvertiSel", .suggerimento = "Inverti selezione", .voce = "Inverti"},
    {.gruppo = 3, .chiave = "Interrompi", .suggerimento = "Interrompi", .voce = "Interrompi"},
    {.gruppo = 4,
     .chiave = "AggiungiBarraLat",
     .suggerimento = "Attiva o disattiva la barra laterale",
     .voce = "BarraLat"}};

} // namespace

struct ComandiProva : Utente {
    ModuloTelva &f = FormTelva;
    ComandiProva() { Apri(Telaio()); }
};

TEST_F(ComandiProva, IMenuSonoQuelliDelManuale) {
    std::vector<Voce> tutte;
    Raccogli("", f.barraMenu, tutte);
    ASSERT_EQ(tutte.size(), std::size(kVoci));
    for (std::size_t k = 0; k < tutte.size(); ++k) EXPECT_EQ(tutte[k], kVoci[k]);
    EXPECT_EQ(tutte.size(), f.voci.size()) << "none outside the tree";
}

TEST_F(ComandiProva, ApreUnMenuOppureFaQualcosa) {
    for (const VoceMenu *v : f.voci) EXPECT_NE(v->voci.empty(), !v->Click) << v->NomeControllo();
}

TEST_F(ComandiProva, SenzaFunzioneNonSiSelezionaNulla) {
    EXPECT_EQ(SelezioniPossibili(), "");
    EXPECT_FALSE(f.Interrompi.Enabled);
    Menu("Aggiungi");
    EXPECT_EQ(SelezioniPossibili(), "Finestra Colore TipoPunto SchVincolo Nome Tutto");
    EXPECT_TRUE(f.Interrompi.Enabled);
    Menu("Interrompi");
    EXPECT_EQ(SelezioniPossibili(), "");
    EXPECT_FALSE(f.Interrompi.Enabled);
}

TEST_F(ComandiProva, IBottoniSonoQuelliDelManuale) {
    const auto &bottoni = f.Toolbar1.Bottoni;
    ASSERT_EQ(bottoni.size(), std::size(kBottoni));
    int gruppo = 1;
    for (std::size_t k = 0; k < bottoni.size(); ++k) {
        if (bottoni[k].nuovoGruppo) ++gruppo;
        EXPECT_EQ(gruppo, kBottoni[k].gruppo) << kBottoni[k].chiave;
        EXPECT_EQ(bottoni[k].chiave, kBottoni[k].chiave);
        EXPECT_EQ(bottoni[k].suggerimento, kBottoni[k].suggerimento);
        EXPECT_EQ(bottoni[k].voce->NomeControllo(), kBottoni[k].voce);
    }
}

TEST_F(ComandiProva, UnBottoneFaCioCheDiceLaSuaEtichetta) {
    Barra("Zoom");
    EXPECT_EQ(Gesto(), "ModoZoom");
    Clic(-5, 205);
    Clic(105, 95);
    const double vicino = f.Disegno.ScaleWidth;
    Barra("Sposta");
    EXPECT_EQ(Gesto(), "ModoSposta");
    Barra("Ottimizza");
    EXPECT_GT(f.Disegno.ScaleWidth, 1.5 * vicino);
    Barra("Aggiungi");
    EXPECT_EQ(Funzione(), "Aggiungi selezione");
    Barra("Rimuovi");
    EXPECT_EQ(Funzione(), "Rimuovi selezione");
    Barra("InvertiSel");
    EXPECT_EQ(Lista(), "1,1-9");
    Barra("RimuoviTutto");
    EXPECT_EQ(Lista(), "");
    Barra("Interrompi");
    EXPECT_EQ(Funzione(), "");
    Intervallo(Estremo::MaxX, "100", false);
    Barra("Ridisegna");
    Barra("InvertiSel");
    EXPECT_EQ(Lista(), "1,1-2,4-5,7-8") << "what is typed holds from the next picture on";
    Barra("AggiungiBarraLat");
    EXPECT_FALSE(f.FrameSel.Visible);
    Barra("AggiornaEsci");
    EXPECT_EQ(codiceFine, 0);
    EXPECT_EQ(Uscita(), "1,1-2,4-5,7-8\r\n");
}

TEST_F(ComandiProva, IlBottoneEsciNonScrive) {
    Barra("Esci");
    EXPECT_EQ(codiceFine, 0);
    EXPECT_EQ(Uscita(), "<assente>");
}

TEST_F(ComandiProva, UnaChiaveIgnotaNonFaNulla) {
    for (const char *chiave : {"aggiungi", "AGGIUNGI", "Aggiung", "Materiale", "Salva", ""}) {
        Barra(chiave);
        EXPECT_EQ(Funzione(), "");
        EXPECT_EQ(Gesto(), "");
        EXPECT_FALSE(Finito());
        EXPECT_EQ(Detto(), "");
    }
}

TEST_F(ComandiProva, SoloEscInterrompe) {
    Menu("Aggiungi");
    for (const char c : {'a', 'A', '\r', '\t', '\b'}) {
        Lettera(c);
        EXPECT_EQ(Funzione(), "Aggiungi selezione");
    }
    Esc();
    EXPECT_EQ(Funzione(), "");
    Esc();
    EXPECT_EQ(Funzione(), "") << "twice is as good as once";
}

} // namespace telva::prove
