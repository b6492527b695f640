// What every control of the three forms shows when it first appears, and where.
#include "sostegno/Utente.h"
#include "ui/controlli/FormOpt.h"
#include "ui/controlli/FormOptInt.h"
#include "ui/controlli/FormTelva.h"

#include <memory>
#include <span>

namespace telva::prove {
namespace {

struct Posto { // twips, within the parent
    double left, top, width, height;
    friend bool operator==(const Posto &, const Posto &) = default;
    friend void PrintTo(const Posto &p, std::ostream *os) {
        *os << "{" << p.left << ", " << p.top << ", " << p.width << ", " << p.height << "}";
    }
};

struct Atteso {
    const char *nome;
    const char *in = "";    // the frame that holds it; "" = the form itself
    const char *testo = ""; // caption, text of a box, name of a colour
    Posto dove;
    const char *suggerimento = "";
    bool acceso = false; // ticked, chosen
    bool abilitato = true;
    StileEtichetta stile = StileEtichetta::Semplice;
    bool bordo = true;
    bool stretta = false;
    std::uint32_t sfondo = kColoreFinestra; // of boxes and colours
};

// At the size the window opens with.
const Atteso kFormTelva[] = {
    {.nome = "Toolbar1", .dove = {0, 0, 14820, 400}},
    {.nome = "FrameInput", .dove = {30, 405, 14820, 600}, .bordo = false},
    {.nome = "Domanda",
     .in = "FrameInput",
     .dove = {60, 0, 12060, 600},
     .stile = StileEtichetta::Centrata},
    {.nome = "Risposta",
     .in = "FrameInput",
     .dove = {12220, 150, 2570, 300},
     .abilitato = false,
     .sfondo = kColoreFaccia},
    {.nome = "Disegno", .dove = {0, 1010, 11976, 8700}},
    {.nome = "FrameSel", .testo = "Elementi da selezionare", .dove = {12026, 1010, 2790, 1640}},
    {.nome = "OptElem(0)",
     .in = "FrameSel",
     .testo = "Nodi",
     .dove = {120, 255, 2550, 245},
     .acceso = true},
    {.nome = "OptElem(1)", .in = "FrameSel", .testo = "Aste", .dove = {120, 520, 2550, 245}},
    {.nome = "OptElem(2)", .in = "FrameSel", .testo = "Gusci", .dove = {120, 785, 2550, 245}},
    {.nome = "OptElem(3)",
     .in = "FrameSel",
     .testo = "Elementi continui",
     .dove = {120, 1050, 2550, 245}},
    {.nome = "OptElem(4)", .in = "FrameSel", .testo = "Pareti", .dove = {120, 1315, 2550, 245}},
    {.nome = "FrameAtt", .testo = "Elementi attivati", .dove = {12026, 2690, 2790, 2720}},
    {.nome = "NodiAtt",
     .in = "FrameAtt",
     .testo = "Nodi",
     .dove = {120, 245, 2550, 235},
     .acceso = true},
    {.nome = "AsteAtt",
     .in = "FrameAtt",
     .testo = "Aste",
     .dove = {120, 497, 2550, 235},
     .acceso = true},
    {.nome = "GusciAtt",
     .in = "FrameAtt",
     .testo = "Gusci",
     .dove = {120, 749, 2550, 235},
     .acceso = true},
    {.nome = "ElSelez",
     .in = "FrameAtt",
     .testo = "Elementi selezionati",
     .dove = {120, 1001, 2550, 235},
     .acceso = true},
    {.nome = "ElNonSelez",
     .in = "FrameAtt",
     .testo = "Elementi non selezionati",
     .dove = {120, 1253, 2550, 235},
     .acceso = true},
    {.nome = "LabelInt",
     .in = "FrameAtt",
     .testo = "Intervalli di coordinate",
     .dove = {120, 1525, 2550, 225}},
    {.nome = "LabelAsse(0)", .in = "FrameAtt", .testo = "X", .dove = {120, 1795, 150, 225}},
    {.nome = "LabelAsse(1)", .in = "FrameAtt", .testo = "Y", .dove = {120, 2105, 150, 225}},
    {.nome = "LabelAsse(2)", .in = "FrameAtt", .testo = "Z", .dove = {120, 2415, 150, 225}},
    {.nome = "IntX(0)",
     .in = "FrameAtt",
     .testo = "0",
     .dove = {300, 1765, 800, 290},
     .suggerimento = "Minima coordinata X mostrata (INVIO ridisegna)"},
    {.nome = "IntX(1)",
     .in = "FrameAtt",
     .testo = "200",
     .dove = {1130, 1765, 800, 290},
     .suggerimento = "Massima coordinata X mostrata (INVIO ridisegna)"},
    {.nome = "TuttoX",
     .in = "FrameAtt",
     .testo = "Tutto",
     .dove = {1960, 1760, 740, 300},
     .suggerimento = "Riporta l'intervallo X all'intera struttura"},
    {.nome = "IntY(0)",
     .in = "FrameAtt",
     .testo = "0",
     .dove = {300, 2075, 800, 290},
     .suggerimento = "Minima coordinata Y mostrata (INVIO ridisegna)"},
    {.nome = "IntY(1)",
     .in = "FrameAtt",
     .testo = "0",
     .dove = {1130, 2075, 800, 290},
     .suggerimento = "Massima coordinata Y mostrata (INVIO ridisegna)"},
    {.nome = "TuttoY",
     .in = "FrameAtt",
     .testo = "Tutto",
     .dove = {1960, 2070, 740, 300},
     .suggerimento = "Riporta l'intervallo Y all'intera struttura"},
    {.nome = "IntZ(0)",
     .in = "FrameAtt",
     .testo = "0",
     .dove = {300, 2385, 800, 290},
     .suggerimento = "Minima coordinata Z mostrata (INVIO ridisegna)"},
    {.nome = "IntZ(1)",
     .in = "FrameAtt",
     .testo = "200",
     .dove = {1130, 2385, 800, 290},
     .suggerimento = "Massima coordinata Z mostrata (INVIO ridisegna)"},
    {.nome = "TuttoZ",
     .in = "FrameAtt",
     .testo = "Tutto",
     .dove = {1960, 2380, 740, 300},
     .suggerimento = "Riporta l'intervallo Z all'intera struttura"},
    {.nome = "Label5", .testo = "Risultato della selezione:", .dove = {30, 9790, 2155, 285}},
    {.nome = "StringaSel", .dove = {2200, 9790, 10536, 290}, .stile = StileEtichetta::Riassunto},
    {.nome = "Label1(0)", .testo = "α", .dove = {12765, 9790, 115, 285}},
    {.nome = "Label1(1)", .testo = "α", .dove = {13470, 9790, 115, 285}},
    {.nome = "Label1(2)", .testo = "α", .dove = {14175, 9790, 115, 285}},
    {.nome = "Label2(0)",
     .testo = "X",
     .dove = {12885, 9890, 90, 200},
     .stile = StileEtichetta::Pedice},
    {.nome = "Label2(1)",
     .testo = "Y",
     .dove = {13590, 9890, 90, 200},
     .stile = StileEtichetta::Pedice},
    {.nome = "Label2(2)",
     .testo = "Z",
     .dove = {14295, 9890, 90, 200},
     .stile = StileEtichetta::Pedice},
    {.nome = "Angolo(0)",
     .testo = "30",
     .dove = {12975, 9790, 465, 300},
     .suggerimento = "Angolo di vista attorno all'asse X, in gradi (INVIO ridisegna)",
     .stretta = true},
    {.nome = "Angolo(1)",
     .testo = "30",
     .dove = {13680, 9790, 465, 300},
     .suggerimento = "Angolo di vista attorno all'asse Y, in gradi (INVIO ridisegna)",
     .stretta = true},
    {.nome = "Angolo(2)",
     .testo = "0",
     .dove = {14385, 9790, 465, 300},
     .suggerimento = "Angolo di vista attorno all'asse Z, in gradi (INVIO ridisegna)",
     .stretta = true},
    {.nome = "Frame2", .dove = {30, 10130, 2610, 465}, .bordo = false},
    {.nome = "FunAttiva", .in = "Frame2", .dove = {30, 0, 2580, 225}},
    {.nome = "SottoFunAttiva", .in = "Frame2", .dove = {30, 230, 2580, 235}},
    {.nome = "LabStato",
     .testo = "nessun nodo selezionato\r\nCtrl+A aggiunge, Ctrl+T rimuove",
     .dove = {2730, 10130, 9285, 465},
     .stile = StileEtichetta::Stato},
    {.nome = "FrameCoord", .dove = {4700, 10130, 9450, 465}, .bordo = false},
    {.nome = "Label6",
     .in = "FrameCoord",
     .testo = "Coordinate:",
     .dove = {7405, 15, 1000, 235},
     .stile = StileEtichetta::SuPiuRighe},
    {.nome = "LabCoord",
     .in = "FrameCoord",
     .dove = {8450, 15, 1690, 460},
     .stile = StileEtichetta::SuPiuRighe},
};
// With the settings of a first start: only the labels of continuous elements are on.
const Atteso kFormOpt[] = {
    {.nome = "FrameElementi", .testo = "Elementi", .dove = {120, 60, 9000, 2400}},
    {.nome = "CheckSpGus",
     .in = "FrameElementi",
     .testo = "Non disegnare i gusci sottili",
     .dove = {180, 285, 2900, 270},
     .acceso = true},
    {.nome = "LabelSpMinGus",
     .in = "FrameElementi",
     .testo = "Spessore minimo [cm]:",
     .dove = {3150, 310, 2100, 225}},
    {.nome = "SpMinGus", .in = "FrameElementi", .testo = "1", .dove = {5340, 270, 900, 300}},
    {.nome = "LabelSpNonSel",
     .in = "FrameElementi",
     .testo = "Spessore degli elementi non selezionati [pixel]:",
     .dove = {180, 640, 5070, 225}},
    {.nome = "SpNonSel", .in = "FrameElementi", .testo = "1", .dove = {5340, 600, 900, 300}},
    {.nome = "LabelSpSel",
     .in = "FrameElementi",
     .testo = "Spessore degli elementi selezionati [pixel]:",
     .dove = {180, 970, 5070, 225}},
    {.nome = "SpSel", .in = "FrameElementi", .testo = "4", .dove = {5340, 930, 900, 300}},
    {.nome = "EvColSel",
     .in = "FrameElementi",
     .testo = "Cambia colore agli elementi selezionati",
     .dove = {180, 1680, 8000, 270},
     .acceso = true},
    {.nome = "EvColNonSel",
     .in = "FrameElementi",
     .testo = "Cambia colore agli elementi non selezionati",
     .dove = {180, 1980, 8000, 270}},
    {.nome = "LabelRaggio",
     .in = "FrameElementi",
     .testo = "Raggio di rappresentazione del nodo [pixel]:",
     .dove = {180, 1300, 5070, 225}},
    {.nome = "Raggio", .in = "FrameElementi", .testo = "5", .dove = {5340, 1260, 900, 300}},
    {.nome = "FrameNum", .testo = "Numerazione", .dove = {120, 2550, 9000, 3510}},
    {.nome = "CheckTxtNodi", .in = "FrameNum", .testo = "Nodi", .dove = {180, 300, 1850, 270}},
    {.nome = "TxtNodi(0)",
     .in = "FrameNum",
     .testo = "Nome",
     .dove = {2070, 300, 1020, 270},
     .acceso = true,
     .abilitato = false},
    {.nome = "TxtNodi(1)",
     .in = "FrameNum",
     .testo = "Vincolo (V)",
     .dove = {3150, 300, 1710, 270},
     .acceso = true,
     .abilitato = false},
    {.nome = "CheckTxtAste", .in = "FrameNum", .testo = "Aste", .dove = {180, 640, 1850, 270}},
    {.nome = "TxtAste(0)",
     .in = "FrameNum",
     .testo = "Nome",
     .dove = {2070, 640, 1020, 270},
     .acceso = true,
     .abilitato = false},
    {.nome = "TxtAste(1)",
     .in = "FrameNum",
     .testo = "Materiale (M)",
     .dove = {3150, 640, 1710, 270},
     .acceso = true,
     .abilitato = false},
    {.nome = "TxtAste(2)",
     .in = "FrameNum",
     .testo = "Sezione (S)",
     .dove = {4920, 640, 1620, 270},
     .acceso = true,
     .abilitato = false},
    {.nome = "TxtAste(3)",
     .in = "FrameNum",
     .testo = "Orientamento (O)",
     .dove = {6600, 640, 2340, 270},
     .acceso = true,
     .abilitato = false},
    {.nome = "TxtAste(4)",
     .in = "FrameNum",
     .testo = "Svincolo (C)",
     .dove = {3150, 920, 1710, 270},
     .acceso = true,
     .abilitato = false},
    {.nome = "CheckTxtGusci", .in = "FrameNum", .testo = "Gusci", .dove = {180, 1260, 1850, 270}},
    {.nome = "TxtGusci(0)",
     .in = "FrameNum",
     .testo = "Nome",
     .dove = {2070, 1260, 1020, 270},
     .acceso = true,
     .abilitato = false},
    {.nome = "TxtGusci(1)",
     .in = "FrameNum",
     .testo = "Materiale (M)",
     .dove = {3150, 1260, 1710, 270},
     .acceso = true,
     .abilitato = false},
    {.nome = "TxtGusci(2)",
     .in = "FrameNum",
     .testo = "Spessore (S)",
     .dove = {4920, 1260, 1620, 270},
     .acceso = true,
     .abilitato = false},
    {.nome = "CheckTxtElCont",
     .in = "FrameNum",
     .testo = "Elementi continui",
     .dove = {180, 1600, 1850, 270},
     .acceso = true},
    {.nome = "TxtElCont",
     .in = "FrameNum",
     .testo = "Nome",
     .dove = {2070, 1600, 1000, 270},
     .acceso = true},
    {.nome = "LabelBaseTxt",
     .in = "FrameNum",
     .testo = "Base testo [unità disegno]:",
     .dove = {180, 2050, 5070, 225}},
    {.nome = "BaseTxt", .in = "FrameNum", .testo = "5", .dove = {5340, 2010, 900, 300}},
    {.nome = "LabelAltezzaTxt",
     .in = "FrameNum",
     .testo = "Altezza testo [unità disegno]:",
     .dove = {180, 2380, 5070, 225}},
    {.nome = "AltezzaTxt", .in = "FrameNum", .testo = "5", .dove = {5340, 2340, 900, 300}},
    {.nome = "LabelDistTxt",
     .in = "FrameNum",
     .testo = "Distanza tra testo ed elemento [unità disegno]:",
     .dove = {180, 2710, 5070, 225}},
    {.nome = "DistTxt", .in = "FrameNum", .testo = "5", .dove = {5340, 2670, 900, 300}},
    {.nome = "LabelColoreTxt",
     .in = "FrameNum",
     .testo = "Colore testo:",
     .dove = {180, 3090, 1600, 225}},
    {.nome = "LabelCol(0)",
     .in = "FrameNum",
     .testo = "Nero",
     .dove = {2115, 3075, 315, 255},
     .sfondo = 0x000000},
    {.nome = "LabelCol(1)",
     .in = "FrameNum",
     .testo = "Bianco",
     .dove = {2580, 3075, 315, 255},
     .acceso = true,
     .sfondo = 0xFFFFFF},
    {.nome = "LabelCol(2)",
     .in = "FrameNum",
     .testo = "Blu",
     .dove = {3045, 3075, 315, 255},
     .sfondo = 0xC00000},
    {.nome = "LabelCol(3)",
     .in = "FrameNum",
     .testo = "Rosso",
     .dove = {3510, 3075, 315, 255},
     .sfondo = 0x0000FF},
    {.nome = "LabelCol(4)",
     .in = "FrameNum",
     .testo = "Verde",
     .dove = {3975, 3075, 315, 255},
     .sfondo = 0x00FF00},
    {.nome = "LabelCol(5)",
     .in = "FrameNum",
     .testo = "Giallo",
     .dove = {4440, 3075, 315, 255},
     .sfondo = 0x00FFFF},
    {.nome = "LabelCol(6)",
     .in = "FrameNum",
     .testo = "Verde scuro",
     .dove = {4905, 3075, 315, 255},
     .sfondo = 0x008000},
    {.nome = "LabelCol(7)",
     .in = "FrameNum",
     .testo = "Magenta",
     .dove = {5370, 3075, 315, 255},
     .sfondo = 0xFF00FF},
    {.nome = "LabelCol(8)",
     .in = "FrameNum",
     .testo = "Azzurro",
     .dove = {5835, 3075, 315, 255},
     .sfondo = 0xFAC5A0},
    {.nome = "LabelCol(9)",
     .in = "FrameNum",
     .testo = "Arancione",
     .dove = {6300, 3075, 315, 255},
     .sfondo = 0x46A3FF},
    {.nome = "LabelBordCol(0)", .in = "FrameNum", .dove = {2070, 3030, 405, 345}},
    {.nome = "LabelBordCol(1)", .in = "FrameNum", .dove = {2535, 3030, 405, 345}, .acceso = true},
    {.nome = "LabelBordCol(2)", .in = "FrameNum", .dove = {3000, 3030, 405, 345}},
    {.nome = "LabelBordCol(3)", .in = "FrameNum", .dove = {3465, 3030, 405, 345}},
    {.nome = "LabelBordCol(4)", .in = "FrameNum", .dove = {3930, 3030, 405, 345}},
    {.nome = "LabelBordCol(5)", .in = "FrameNum", .dove = {4395, 3030, 405, 345}},
    {.nome = "LabelBordCol(6)", .in = "FrameNum", .dove = {4860, 3030, 405, 345}},
    {.nome = "LabelBordCol(7)", .in = "FrameNum", .dove = {5325, 3030, 405, 345}},
    {.nome = "LabelBordCol(8)", .in = "FrameNum", .dove = {5790, 3030, 405, 345}},
    {.nome = "LabelBordCol(9)", .in = "FrameNum", .dove = {6255, 3030, 405, 345}},
    {.nome = "Salva", .testo = "Salva", .dove = {6180, 6195, 1410, 390}},
    {.nome = "Chiudi", .testo = "Chiudi", .dove = {7710, 6195, 1410, 390}},
};
const Atteso kFormOptInt[] = {
    {.nome = "Frame1", .dove = {120, 60, 3930, 1290}},
    {.nome = "TextTrappola",
     .in = "Frame1",
     .testo = "8",
     .dove = {2910, 300, 840, 300},
     .suggerimento = "Raggio della zona di selezione attorno al puntatore, in pixel"},
    {.nome = "Label1",
     .in = "Frame1",
     .testo = "Dimensione della trappola:",
     .dove = {180, 330, 2700, 225}},
    {.nome = "Command1", .in = "Frame1", .testo = "Chiudi", .dove = {2400, 750, 1350, 375}},
};

// --- what a control shows

std::string Testo(const Controllo &c) {
    if (const auto *etichetta = dynamic_cast<const Etichetta *>(&c)) return etichetta->Caption;
    if (const auto *cornice = dynamic_cast<const Cornice *>(&c)) return cornice->Caption;
    if (const auto *casella = dynamic_cast<const CasellaTesto *>(&c)) return casella->Text;
    if (const auto *spunta = dynamic_cast<const CasellaSpunta *>(&c)) return spunta->Caption;
    if (const auto *opzione = dynamic_cast<const BottoneOpzione *>(&c)) return opzione->Caption;
    if (const auto *pulsante = dynamic_cast<const Pulsante *>(&c)) return pulsante->Caption;
    if (const auto *campione = dynamic_cast<const Campione *>(&c)) return campione->didascalia;
    return "";
}

bool Acceso(const Controllo &c) {
    if (const auto *spunta = dynamic_cast<const CasellaSpunta *>(&c)) return spunta->Value;
    if (const auto *opzione = dynamic_cast<const BottoneOpzione *>(&c)) return opzione->Value;
    if (const auto *campione = dynamic_cast<const Campione *>(&c)) return campione->Marcato;
    return false;
}

void ControllaAspetto(const Controllo &c, const Atteso &a) {
    if (const auto *etichetta = dynamic_cast<const Etichetta *>(&c)) {
        EXPECT_EQ(etichetta->stile, a.stile);
    }
    if (const auto *cornice = dynamic_cast<const Cornice *>(&c)) {
        EXPECT_EQ(cornice->bordo, a.bordo);
    }
    if (const auto *casella = dynamic_cast<const CasellaTesto *>(&c)) {
        EXPECT_EQ(casella->stretta, a.stretta);
        EXPECT_EQ(casella->BackColor, a.sfondo);
    }
    if (const auto *campione = dynamic_cast<const Campione *>(&c); campione && campione->Click) {
        EXPECT_EQ(campione->BackColor, a.sfondo);
    }
}

// In the order of the table, which is that of the Tab key.
void Controlla(const Modulo &modulo, std::span<const Atteso> attesi) {
    ASSERT_EQ(modulo.controlli.size(), attesi.size());
    for (std::size_t k = 0; k < attesi.size(); ++k) {
        const Controllo &c = *modulo.controlli[k];
        const Atteso &a = attesi[k];
        SCOPED_TRACE(modulo.NomeControllo() + "." + a.nome);
        EXPECT_EQ(c.NomeControllo(), a.nome);
        EXPECT_EQ(c.Genitore() ? c.Genitore()->NomeControllo() : "", a.in);
        EXPECT_EQ(Testo(c), a.testo);
        EXPECT_EQ((Posto{c.Left, c.Top, c.Width, c.Height}), a.dove);
        EXPECT_EQ(c.ToolTipText(), a.suggerimento);
        EXPECT_EQ(Acceso(c), a.acceso);
        EXPECT_EQ(c.Enabled, a.abilitato);
        EXPECT_TRUE(c.Visible);
        ControllaAspetto(c, a);
    }
}

bool Separati(const Controllo &a, const Controllo &b) {
    const double aLeft = a.LeftAssoluto(), bLeft = b.LeftAssoluto();
    const double aTop = a.TopAssoluto(), bTop = b.TopAssoluto();
    return aLeft + a.Width <= bLeft || bLeft + b.Width <= aLeft || aTop + a.Height <= bTop ||
           bTop + b.Height <= aTop;
}

// Frames hold others, and the frame around a colour holds it.
bool Contiene(const Controllo &c) {
    const auto *campione = dynamic_cast<const Campione *>(&c);
    return dynamic_cast<const Cornice *>(&c) || (campione && !campione->Click);
}

void ControllaCheStiano(const Modulo &modulo) {
    for (const Controllo *a : modulo.controlli) {
        SCOPED_TRACE(modulo.NomeControllo() + "." + a->NomeControllo());
        EXPECT_GE(a->LeftAssoluto(), 0);
        EXPECT_GE(a->TopAssoluto(), 0);
        EXPECT_LE(a->LeftAssoluto() + a->Width, modulo.Width);
        EXPECT_LE(a->TopAssoluto() + a->Height, modulo.Height);
        for (const Controllo *b : modulo.controlli)
            if (a != b && a->Visible && b->Visible && !Contiene(*a) && !Contiene(*b)) {
                EXPECT_TRUE(Separati(*a, *b)) << "over " << b->NomeControllo();
            }
    }
}

} // namespace

struct ControlliProva : Utente {
    ControlliProva() { Apri(Telaio(), false); }
    ~ControlliProva() override { FormOpt.Chiudi(); }
};

TEST_F(ControlliProva, LaFinestraPrincipale) {
    const Modulo &f = FormTelva;
    EXPECT_TRUE(f.ridimensionabile);
    EXPECT_EQ(f.larghezzaMinima, 5550);
    EXPECT_EQ(f.altezzaMinima, 7120);
    EXPECT_EQ(f.Width, 15000);
    EXPECT_EQ(f.Height, 11400);
    Controlla(f, kFormTelva);
}

// Before anything has been asked.
TEST_F(ControlliProva, AllaNascitaLaRispostaNonSiPuoScrivere) {
    const auto nuova = std::make_unique<ModuloTelva>();
    EXPECT_FALSE(nuova->Risposta.Enabled);
    EXPECT_EQ(nuova->Risposta.BackColor, kColoreFaccia);
    EXPECT_EQ(nuova->TipoElemento(), 0);
}

TEST_F(ControlliProva, LeOpzioniDiRappresentazione) {
    Menu("Rappresentazione");
    const Modulo &f = FormOpt;
    EXPECT_EQ(f.Caption, "Opzioni di rappresentazione");
    EXPECT_FALSE(f.ridimensionabile);
    EXPECT_EQ(f.Width, 9240);
    EXPECT_EQ(f.Height, 6705);
    Controlla(f, kFormOpt);
}

TEST_F(ControlliProva, LaTrappola) {
    Menu("Trappola");
    const Modulo &f = FormOptInt;
    EXPECT_EQ(f.Caption, "Opzioni");
    EXPECT_FALSE(f.ridimensionabile);
    EXPECT_EQ(f.Width, 4170);
    EXPECT_EQ(f.Height, 1470);
    Controlla(f, kFormOptInt);
    FormOptInt.Chiudi();
}

TEST_F(ControlliProva, NienteStaSopraAltroOFuoriDallaFinestra) {
    ControllaCheStiano(FormOpt);
    ControllaCheStiano(FormOptInt);
    for (const double larghezza : {5550, 7000, 15000})
        for (const double altezza : {7120, 11400}) {
            Ridimensiona(larghezza, altezza);
            ControllaCheStiano(FormTelva);
        }
}

} // namespace telva::prove
