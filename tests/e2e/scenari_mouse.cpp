// The pointer on the drawing: pick, windows, zoom, pans, wheel, pop-up menu and read-out.
#include "Sessione.h"

using namespace telva::prove;

namespace {

// Two clicks that open and close a window or a zoom.
void Rettangolo(Sessione &s, const Luogo &da, const Luogo &a) {
    s.Clic(da);
    s.Clic(a);
}

// Around every node.
void RettangoloSuTutto(Sessione &s) {
    Rettangolo(s, Incrocio(3, 20).Piu(-15, -15), Incrocio(4, 2).Piu(15, 15));
}

void ZoomSullAlto(Sessione &s) {
    Rettangolo(s, Incrocio(3, 20).Piu(-15, -15), Nodo(4).Piu(15, 15));
}

// The view as the session found it.
void VistaIniziale(Sessione &s) {
    s.NodoStaIn(4, Nodo(4));
    s.NodoStaIn(1, Nodo(1));
}

} // namespace

SCENARIO(mouse_scelta_diretta) {
    Sessione s(amb, Genere::Nodi);
    s.Clic(Nodo(1)); // without a function nothing is picked
    s.Premi("Ctrl+A");
    s.FunzioneDiventa("Aggiungi selezione");
    s.ListaDiventa("");
    const struct {
        Genere genere;
        Luogo clic;
        const char *lista; // of two on one bar, the later
    } scelte[] = {
        {.genere = Genere::Nodi, .clic = Nodo(3), .lista = "3"},
        {.genere = Genere::Nodi, .clic = Nodo(20).Piu(4, -4), .lista = "3,20"},
        {.genere = Genere::Nodi, .clic = Nodo(1), .lista = "1,1,3,20"},
        {.genere = Genere::Aste, .clic = Mezzo(1, 3), .lista = "7,7"},
        {.genere = Genere::Aste, .clic = Mezzo(2, 4), .lista = "7,7-8"},
        {.genere = Genere::Gusci, .clic = Mezzo(1, 4), .lista = "31,31"},
        {.genere = Genere::Gusci, .clic = Mezzo(20, 4).Piu(-4, 4), .lista = "31,31,38"},
        {.genere = Genere::ElementiContinui, .clic = Mezzo(1, 3), .lista = "103"},
        {.genere = Genere::ElementiContinui, .clic = Mezzo(2, 4), .lista = "101,101,103"}};
    for (const auto &scelta : scelte) {
        if (!s.p.Spuntato("OptElem(" + std::to_string(static_cast<int>(scelta.genere)) + ")"))
            s.Scegli(scelta.genere);
        s.Clic(scelta.clic);
        s.ListaDiventa(scelta.lista);
    }
    s.Premi("Ctrl+T");
    s.FunzioneDiventa("Rimuovi selezione");
    s.Clic(Mezzo(1, 3));
    s.ListaDiventa("101,101");
    s.Scegli(Genere::Nodi);
    s.Clic(Nodo(20));
    s.ListaDiventa("1,1,3");
    s.SottoFunzioneDiventa("Selezione diretta");
}

// A window around nodes 1 and 2, from each of its corners. None begins where the one before has
// ended: that would be a double click.
SCENARIO(mouse_finestra_da_ogni_angolo) {
    Sessione s(amb, Genere::Nodi);
    const struct {
        Luogo primo, secondo;
    } angoli[] = {{.primo = Nodo(1).Piu(-15, -15), .secondo = Nodo(2).Piu(15, 15)},
                  {.primo = Incrocio(2, 1).Piu(15, -15), .secondo = Incrocio(1, 2).Piu(-15, 15)},
                  {.primo = Nodo(2).Piu(15, 15), .secondo = Nodo(1).Piu(-15, -15)},
                  {.primo = Incrocio(1, 2).Piu(-15, 15), .secondo = Incrocio(2, 1).Piu(15, -15)}};
    for (const auto &angolo : angoli) {
        for (const bool aggiunge : {true, false}) {
            s.Premi(aggiunge ? "Ctrl+A" : "Ctrl+T");
            s.Menu("Selezioni", "Finestra");
            s.SottoFunzioneDiventa("Seleziona per finestra");
            Rettangolo(s, angolo.primo, angolo.secondo);
            s.ListaDiventa(aggiunge ? "1,1-2" : "");
            s.SottoFunzioneDiventa("Seleziona per finestra");
        }
    }
}

SCENARIO(mouse_finestra_per_genere) {
    Sessione s(amb, Genere::Nodi);
    s.Premi("Ctrl+A");
    s.Menu("Selezioni", "Finestra");
    s.Scegli(Genere::Aste);
    Rettangolo(s, Nodo(3).Piu(-15, -15), Nodo(1).Piu(15, 15));
    s.ListaDiventa("7,7");
    Rettangolo(s, Nodo(3).Piu(-15, -16), Nodo(2).Piu(15, 15));
    s.ListaDiventa("7,7-8,14");
    s.Scegli(Genere::Gusci);
    Rettangolo(s, Nodo(3).Piu(-15, -15), Nodo(2).Piu(15, 16));
    s.ListaDiventa("");
    RettangoloSuTutto(s);
    s.ListaDiventa("31,31-38");
    s.Scegli(Genere::ElementiContinui);
    RettangoloSuTutto(s);
    s.ListaDiventa("101,101-103");
    s.Scegli(Genere::Pareti);
    RettangoloSuTutto(s);
    s.ListaDiventa("");
    s.Scegli(Genere::Nodi);
    Rettangolo(s, Incrocio(3, 20).Piu(-15, -15), Nodo(4).Piu(15, 15));
    s.ListaDiventa("3-4,20");
}

// A pick on nothing opens a window by itself, and picking goes on after it.
SCENARIO(mouse_finestra_automatica) {
    Sessione s(amb, Genere::Nodi);
    const Luogo fuori = Nodo(1).Piu(-40, -20), oltre = Nodo(2).Piu(20, 20);
    s.Premi("Ctrl+A");
    s.Clic(Nodo(3));
    s.Clic(Nodo(4));
    s.ListaDiventa("3-4");
    s.SottoFunzioneDiventa("Selezione diretta");
    s.Clic(fuori);
    s.SottoFunzioneDiventa("Seleziona per finestra");
    s.Fotografa("Disegno");
    s.Punta(oltre);
    s.FotoDiversa();
    s.Clic(oltre);
    s.ListaDiventa("1,1-4");
    s.SottoFunzioneDiventa("Selezione diretta");
    s.Premi("Ctrl+T");
    s.Clic(fuori);
    s.SottoFunzioneDiventa("Seleziona per finestra");
    s.Clic(oltre);
    s.ListaDiventa("3-4");
    s.Clic(Nodo(4));
    s.ListaDiventa("3");
}

// Escape takes an open window away, and the next click opens none.
SCENARIO(mouse_finestra_annullata) {
    Sessione s(amb, Genere::Nodi);
    const Luogo fuori = Nodo(1).Piu(-40, -20);
    s.Premi("Ctrl+A");
    s.FunzioneDiventa("Aggiungi selezione");
    s.Fotografa("Disegno");
    s.Clic(fuori);
    s.Punta(Nodo(4));
    s.FotoDiversa();
    s.Premi("Esc");
    s.FunzioneDiventa("");
    s.Clic(Nodo(20));
    s.Punta(fuori);
    s.FotoUguale();
    s.ListaDiventa("");
}

SCENARIO(mouse_zoom) {
    Sessione s(amb, Genere::Nodi);
    s.Premi("Ctrl+A", "Ctrl+Z");
    s.SottoFunzioneDiventa("Zoom");
    ZoomSullAlto(s);
    s.SottoFunzioneDiventa("Selezione diretta");
    s.NonSiVede(2);
    s.SiVede(4);
    s.Premi("Ctrl+O");
    VistaIniziale(s);
    s.Premi("Ctrl+Z"); // from the opposite corner
    Rettangolo(s, Incrocio(4, 20).Piu(15, -15), Incrocio(3, 4).Piu(-15, 15));
    s.NonSiVede(2);
    s.SiVede(4);
    s.Premi("Ctrl+O");
    VistaIniziale(s);
}

SCENARIO(mouse_spostamenti) {
    Sessione s(amb, Genere::Nodi);
    s.Premi("Ctrl+A", "Ctrl+S");
    s.SottoFunzioneDiventa("Sposta");
    s.Clic(Nodo(3).Piu(-60, -20));
    s.Clic(Nodo(3).Piu(0, -60));
    s.SottoFunzioneDiventa("Selezione diretta");
    s.NodoStaIn(4, Nodo(4).Piu(60, -40));
    s.NodoStaIn(1, Nodo(1).Piu(60, -40));
    const Luogo dopo = Nodo(4).Piu(20, -10);
    s.TrascinaColMedio(Vuoto(), Vuoto().Piu(-40, 30), [&] { s.NodoStaIn(4, dopo); });
    s.Punta(Vuoto());
    s.NodoStaIn(4, dopo);
    s.DoppioClic(Vuoto(), Bottone::Medio); // fits
    VistaIniziale(s);
    // With the left button a double click fits nothing.
    s.Premi("Esc");
    s.FunzioneDiventa("");
    s.Rotella(2);
    s.Fotografa("Disegno");
    s.DoppioClic(Vuoto());
    s.Premi("Ctrl+T");
    s.FunzioneDiventa("Rimuovi selezione");
    s.FotoUguale();
    s.ListaDiventa("");
}

// The wheel works on the drawing under it, whatever has the focus; so do the keys of the view, but
// in a text box, where they belong to the text.
SCENARIO(mouse_rotella) {
    Sessione s(amb, Genere::Nodi);
    const struct {
        const char *fuoco;
        bool frecceAllaVista;
    } casi[] = {{.fuoco = "Angolo(0)", .frecceAllaVista = false},
                {.fuoco = "OptElem(0)", .frecceAllaVista = true},
                {.fuoco = "NodiAtt", .frecceAllaVista = true}};
    for (const auto &caso : casi) {
        s.VaiA(caso.fuoco);
        s.Rotella(9);
        s.NonSiVede(4);
        s.Rotella(-9);
        s.SiVede(4);
        s.DoppioClic(Vuoto(), Bottone::Medio);
        VistaIniziale(s);
        if (caso.frecceAllaVista) {
            s.Fotografa("Disegno");
            s.Premi("Ctrl+Destra");
            s.FotoDiversa();
            s.Premi("Ctrl+Sinistra");
            s.FotoUguale();
        }
        VERIFICA(s.p.HaFuoco(caso.fuoco));
    }
}

SCENARIO(mouse_menu_di_scelta) {
    Sessione s(amb);
    const auto aperto = [] {
        HWND menu = FindWindowW(L"#32768", nullptr);
        return menu && IsWindowVisible(menu) ? menu : nullptr;
    };
    POINT punto = s.Punto(Mezzo(3, 4));
    s.Clic(Mezzo(3, 4), Bottone::Destro);
    s.p.Aspetta("the pop-up menu", [&] { return aperto() != nullptr; });
    RECT r{};
    GetWindowRect(aperto(), &r);
    ClientToScreen(s.disegno, &punto);
    VERIFICA(std::abs(r.left - punto.x) <= 4);
    VERIFICA(std::abs(r.top - punto.y) <= 4);
    Manda(Accordo("s")); // Premi waits for a window without a menu
    s.SottoFunzioneDiventa("Sposta");
    s.p.Aspetta("the menu to close", [&] { return aperto() == nullptr; });
    s.Premi("Esc");
    s.SottoFunzioneDiventa("");
}

SCENARIO(mouse_coordinate) {
    Sessione s(amb);
    const struct {
        Luogo qui;
        const char *letto;
    } casi[] = {{.qui = Nodo(2), .letto = "400, 0, 0 [N2]"},
                {.qui = Nodo(2).Piu(20, 0), .letto = ""},
                {.qui = Nodo(3).Piu(-4, 4), .letto = "0, 0, 300 [N3]"},
                {.qui = Mezzo(1, 3), .letto = ""},
                {.qui = Nodo(20), .letto = "200, 0, 450 [N20]"}};
    for (const auto &caso : casi) {
        s.Punta(caso.qui);
        s.TestoDiventa("LabCoord", caso.letto);
    }
    s.Clic("NodiAtt");
    s.NonSiVede(20);
    s.Punta(Nodo(20)); // hidden nodes are not read
    s.TestoDiventa("LabCoord", "");
}
