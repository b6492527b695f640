// Every control of the three windows: name, caption, tip, and what a reader says of it.
#include "Finestre.h"
#include "Sessione.h"
#include "view/colori.h"

#include <commctrl.h>

#include <set>

using namespace telva::prove;

namespace {

using Tabella = std::vector<ControlloAtteso>;

Tabella Unisci(std::initializer_list<Tabella> parti) {
    Tabella tutti;
    for (const Tabella &parte : parti) tutti.insert(tutti.end(), parte.begin(), parte.end());
    return tutti;
}

// The controls of an array, by their captions.
Tabella Schiera(const std::string &nome, const std::vector<std::string> &didascalie) {
    Tabella schiera;
    for (const std::string &didascalia : didascalie)
        schiera.push_back(
            {.nome = nome + "(" + std::to_string(schiera.size()) + ")", .didascalia = didascalia});
    return schiera;
}

std::vector<std::string> Colori() {
    std::vector<std::string> nomi;
    for (const telva::ColoreNoto &colore : telva::kColori) nomi.emplace_back(colore.nome);
    return nomi;
}

// A text box whose tip is also its name for a reader.
ControlloAtteso Casella(const std::string &nome, const std::string &valore,
                        const std::string &suggerimento) {
    return {nome, valore, suggerimento, suggerimento};
}

ControlloAtteso Angolo(int k, const std::string &asse, const std::string &valore) {
    return Casella("Angolo(" + std::to_string(k) + ")", valore,
                   "Angolo di vista attorno all'asse " + asse + ", in gradi (INVIO ridisegna)");
}

Tabella Intervallo(const std::string &asse, const std::string &minima, const std::string &massima) {
    const std::string nome = "Int" + asse,
                      resto = " coordinata " + asse + " mostrata (INVIO ridisegna)";
    return {Casella(nome + "(0)", minima, "Minima" + resto),
            Casella(nome + "(1)", massima, "Massima" + resto),
            {.nome = "Tutto" + asse,
             .didascalia = "Tutto",
             .suggerimento = "Riporta l'intervallo " + asse + " all'intera struttura"}};
}

// A label and the text box that it names.
Tabella Riga(const std::string &nome, const std::string &valore, const std::string &etichetta) {
    return {{.nome = "Label" + nome, .didascalia = etichetta},
            {.nome = nome, .didascalia = valore, .letto = etichetta}};
}

const Tabella kFinestra = Unisci(
    {{{.nome = "Toolbar1", .didascalia = "Barra degli strumenti"},
      {.nome = "FrameInput"},
      {.nome = "Domanda"},
      {.nome = "Risposta"},
      {.nome = "Disegno", .didascalia = "Disegno della struttura"},
      {.nome = "FrameSel", .didascalia = "Elementi da selezionare"},
      {.nome = "FrameAtt", .didascalia = "Elementi attivati"},
      {.nome = "NodiAtt", .didascalia = "Nodi"},
      {.nome = "AsteAtt", .didascalia = "Aste"},
      {.nome = "GusciAtt", .didascalia = "Gusci"},
      {.nome = "ElSelez", .didascalia = "Elementi selezionati"},
      {.nome = "ElNonSelez", .didascalia = "Elementi non selezionati"},
      {.nome = "LabelInt", .didascalia = "Intervalli di coordinate"},
      {.nome = "Label5", .didascalia = "Risultato della selezione:"},
      {.nome = "StringaSel", .didascalia = "31,31,33,35,37"},
      {.nome = "Frame2"},
      {.nome = "FunAttiva"},
      {.nome = "SottoFunAttiva"},
      {.nome = "LabStato", .didascalia = "4 gusci selezionati\r\nCtrl+A aggiunge, Ctrl+T rimuove"},
      {.nome = "FrameCoord"},
      {.nome = "Label6", .didascalia = "Coordinate:"},
      {.nome = "LabCoord"}},
     Schiera("OptElem", {"Nodi", "Aste", "Gusci", "Elementi continui", "Pareti"}),
     Schiera("LabelAsse", {"X", "Y", "Z"}),
     Schiera("Label1", {"α", "α", "α"}),
     Schiera("Label2", {"X", "Y", "Z"}),
     Intervallo("X", "0", "400"),
     Intervallo("Y", "0", "0"),
     Intervallo("Z", "0", "450"),
     {Angolo(0, "X", "30"), Angolo(1, "Y", "30"), Angolo(2, "Z", "0")}});

const Tabella kTrappola = {
    {.nome = "Frame1"},
    {.nome = "Label1", .didascalia = "Dimensione della trappola:"},
    Casella("TextTrappola", "8", "Raggio della zona di selezione attorno al puntatore, in pixel"),
    {.nome = "Command1", .didascalia = "Chiudi"},
};

const Tabella kOpzioni =
    Unisci({{{.nome = "FrameElementi", .didascalia = "Elementi"},
             {.nome = "CheckSpGus", .didascalia = "Non disegnare i gusci sottili"},
             {.nome = "EvColSel", .didascalia = "Cambia colore agli elementi selezionati"},
             {.nome = "EvColNonSel", .didascalia = "Cambia colore agli elementi non selezionati"},
             {.nome = "FrameNum", .didascalia = "Numerazione"},
             {.nome = "CheckTxtNodi", .didascalia = "Nodi"},
             {.nome = "CheckTxtAste", .didascalia = "Aste"},
             {.nome = "CheckTxtGusci", .didascalia = "Gusci"},
             {.nome = "CheckTxtElCont", .didascalia = "Elementi continui"},
             {.nome = "TxtElCont", .didascalia = "Nome"},
             {.nome = "LabelColoreTxt", .didascalia = "Colore testo:"},
             {.nome = "Salva", .didascalia = "Salva"},
             {.nome = "Chiudi", .didascalia = "Chiudi"}},
            Riga("SpMinGus", "1", "Spessore minimo [cm]:"),
            Riga("SpNonSel", "1", "Spessore degli elementi non selezionati [pixel]:"),
            Riga("SpSel", "4", "Spessore degli elementi selezionati [pixel]:"),
            Riga("Raggio", "5", "Raggio di rappresentazione del nodo [pixel]:"),
            Schiera("TxtNodi", {"Nome", "Vincolo (V)"}),
            Schiera("TxtAste",
                    {"Nome", "Materiale (M)", "Sezione (S)", "Orientamento (O)", "Svincolo (C)"}),
            Schiera("TxtGusci", {"Nome", "Materiale (M)", "Spessore (S)"}),
            Riga("BaseTxt", "5", "Base testo [unità disegno]:"),
            Riga("AltezzaTxt", "5", "Altezza testo [unità disegno]:"),
            Riga("DistTxt", "5", "Distanza tra testo ed elemento [unità disegno]:"),
            Schiera("LabelCol", Colori()),
            Schiera("LabelBordCol", std::vector<std::string>(Colori().size()))});

// The part of the screen that is dark in that one, whose corner shows the ground.
RECT Inchiostro(const RECT &zona) {
    const Immagine foto = Schermo(&zona);
    const auto luce = [&](int x, int y) { return foto.In(x, y) & 0xFF; };
    RECT tutto{};
    for (int y = 0; y < foto.altezza; ++y)
        for (int x = 0; x < foto.larghezza; ++x) {
            RECT punto{x, y, x + 1, y + 1};
            OffsetRect(&punto, zona.left, zona.top);
            if (luce(x, y) * 6 < luce(0, 0) * 5) UnionRect(&tutto, &tutto, &punto);
        }
    return tutto;
}

// The lowest row of the screen that the first letter in a control reaches.
LONG PiedeDelTesto(HWND controllo) {
    RECT r{};
    GetClientRect(controllo, &r);
    MapWindowPoints(controllo, nullptr, reinterpret_cast<POINT *>(&r), 2);
    r.left = Inchiostro(r).left;
    r.right = r.left + 4;
    return Inchiostro(r).bottom;
}

LONG Larghezza(HWND controllo) { return Rettangolo(controllo).right - Rettangolo(controllo).left; }

// Where a row of a label (0: the upper half, 1: the lower) ends, in its pixels; its frame is none.
LONG FineDelTesto(HWND etichetta, int riga = 0) {
    const RECT r = Rettangolo(etichetta);
    const LONG meta = (r.bottom - r.top) / 2, alto = r.top + riga * meta;
    return Inchiostro({r.left + 2, alto + 2 - 2 * riga, r.right - 2, alto + meta - 2}).right -
           r.left - 1;
}

// Whether a row of a label shows this beginning of its text and an ellipsis, from that pixel on;
// the lower half of a single row has its dots.
bool Tronca(HWND etichetta, int riga, const std::string &inizio, LONG da) {
    const LONG fine = FineDelTesto(etichetta, riga) - da;
    return fine > Ingombro(inizio, 999).cx && fine < Ingombro(inizio + "…", 999).cx;
}

// The box is given the text beside it: a letter and the same letter.
void VerificaAllineati(const Programma &p, const std::string &etichetta,
                       const std::string &casella) {
    const HWND accanto = p.Controllo(etichetta);
    const std::wstring testo = Largo(p.Testo(accanto));
    SendMessageW(p.Controllo(casella), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(testo.c_str()));
    Passo("look at " + etichetta + " beside " + casella);
    DIVENTA(p, PiedeDelTesto(p.Controllo(casella)), PiedeDelTesto(accanto));
}

} // namespace

SCENARIO(didascalie_allineate) {
    Sessione s(amb);
    s.PuntaInDisparte();
    VerificaAllineati(s, "LabelAsse(0)", "IntX(0)");
    VerificaAllineati(s, "LabelAsse(2)", "IntZ(1)");
    VerificaAllineati(s, "Label1(1)", "Angolo(1)");
    s.ApriOpzioni();
    for (const std::string casella : {"SpNonSel", "SpSel", "Raggio"})
        VerificaAllineati(s, "Label" + casella, casella);
    s.Premi("Esc");
    s.Principale();
    s.Premi("Ctrl+A");
    s.ChiediNomi(); // the question stands against the answer
    const HWND domanda = s.Controllo("Domanda");
    DIVENTA(s, Larghezza(domanda) - FineDelTesto(domanda) <= 4, true);
}

// What the caller wants stands out; what finds no room stands in the tip, for half a minute.
SCENARIO(didascalie_stato) {
    Sessione s(amb, Genere::Nodi);
    const int alta = 960;
    s.Dimensiona(s.finestra, 1560, alta);
    s.Scegli(Genere::Gusci);
    s.PuntaInDisparte();
    s.TestoDiventa("LabStato", "richiesti: nodi; nessun guscio selezionato\r\n"
                               "Ctrl+A aggiunge, Ctrl+T rimuove");
    const HWND stato = s.Controllo("LabStato");
    const LONG larga = Ingombro("richiesti: nodi", 1560, FW_BOLD).cx +
                       Ingombro("; nessun guscio selezionato", 1560).cx;
    DIVENTA(s, std::abs(FineDelTesto(stato) - larga) <= 2, true);
    UGUALE(s.Suggerimenti(s.finestra).contains(stato), false);
    const LONG resto = 1560 - Larghezza(stato), dpi = static_cast<LONG>(GetDpiForWindow(stato));
    const LONG forte = Ingombro("richiesti: nodi", 1560, FW_BOLD).cx;
    s.Dimensiona(s.finestra, resto + forte + Ingombro("; nessun gusc", 999).cx, alta);
    DIVENTA(s, s.Suggerimenti(s.finestra)[stato], s.Testo(stato));
    DIVENTA(s, Tronca(stato, 0, "; nessun gu", forte), true);
    s.Dimensiona(s.finestra, resto + Ingombro("Ctrl+A aggiunge, Ctrl+T", 999).cx, alta);
    DIVENTA(s, Tronca(stato, 1, "Ctrl+A aggiunge,", 0), true);
    UGUALE(s.Suggerimenti(s.finestra)[stato], s.Testo(stato));
    const LONG minima = (6615 * dpi + 1439) / 1440; // with 60 pixels (at 100 %) left for it
    s.Dimensiona(s.finestra, minima - 1, alta);
    DIVENTA(s, s.Visibile("LabStato"), false);
    s.Dimensiona(s.finestra, minima, alta);
    DIVENTA(s, s.Visibile("LabStato"), true);
    std::set<LRESULT> durate;
    for (HWND h = nullptr; (h = FindWindowExW(nullptr, h, TOOLTIPS_CLASSW, nullptr)) != nullptr;)
        durate.insert(SendMessageW(h, TTM_GETDELAYTIME, TTDT_AUTOPOP, 0));
    VERIFICA(durate.contains(30000));
}

SCENARIO(didascalie_finestra) {
    Sessione s(amb, Genere::Gusci, "31,33,35,37");
    s.PuntaInDisparte();
    s.TestoDiventa("LabCoord", "");
    VerificaControlli(s, s.finestra, kFinestra);
    // Where the list finds no room, it ends with a whole number; 5 pixels are free beside it.
    const HWND lista = s.Controllo("StringaSel");
    const LONG posto = Ingombro("31,31,33,3…", 999).cx + 2 * 5 + 1;
    s.Dimensiona(s.finestra, Larghezza(s.finestra) - Larghezza(lista) + posto, 960);
    DIVENTA(s, Tronca(lista, 1, "31,31,33,", 5), true);
}

SCENARIO(didascalie_dialoghi) {
    Sessione s(Copia(amb));
    VerificaControlli(s, s.ApriTrappola(), kTrappola);
    s.Premi("Esc");
    s.Principale();
    VerificaControlli(s, s.ApriOpzioni(), kOpzioni);
}
