// The pointer on the drawing: pick, windows, zoom, pans, wheel, pop-up menu, and what is read of it
// all.
#include "Sessione.h"

using namespace telva::prove;

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
    } scelte[] = {{.genere = Genere::Gusci, .clic = Mezzo(20, 4).Piu(-4, 4), .lista = "38"},
                  {.genere = Genere::ElementiContinui, .clic = Mezzo(1, 3), .lista = "103"},
                  {.genere = Genere::Aste, .clic = Mezzo(2, 4), .lista = "8"},
                  {.genere = Genere::Nodi, .clic = Nodo(3), .lista = "3"},
                  {.genere = Genere::Nodi, .clic = Nodo(20).Piu(4, -4), .lista = "3,20"}};
    for (const auto &scelta : scelte) {
        s.Scegli(scelta.genere);
        s.Clic(scelta.clic);
        s.ListaDiventa(scelta.lista);
    }
    s.Premi("Ctrl+T");
    s.FunzioneDiventa("Rimuovi selezione");
    s.Clic(Nodo(20));
    s.ListaDiventa("3");
    s.TestoDiventa("LabCoord", "200, 0, 450 [N20]");
    s.Scegli("Opzioni", "Visualizza Coordinate");
    DIVENTA(s, s.Visibile("LabCoord"), false);
}

// In map coordinates single precision would be several pixels off.
SCENARIO(mouse_lavoro_lontano) {
    Sessione s(amb, Genere::Nodi, "", 5e8);
    s.Premi("Ctrl+A");
    s.FunzioneDiventa("Aggiungi selezione");
    for (const int nome : {1, 2, 3, 4, 20}) s.Clic(Nodo(nome));
    s.ListaDiventa("1,1-4,20");
    s.Scegli(Genere::Aste);
    s.Clic(Mezzo(2, 4));
    s.ListaDiventa("8");
}

// A pick on nothing opens a window by itself, and picking goes on after it.
SCENARIO(mouse_finestra) {
    Sessione s(amb, Genere::Nodi);
    const Luogo fuori = Nodo(1).Piu(-40, -20), oltre = Nodo(2).Piu(20, 20);
    s.Premi("Ctrl+A");
    s.SottoFunzioneDiventa("Selezione diretta");
    s.Fotografa("Disegno");
    s.Clic(fuori);
    s.SottoFunzioneDiventa("Seleziona per finestra");
    s.Punta(oltre);
    s.FotoDiversa();
    s.Clic(oltre);
    s.ListaDiventa("1,1-2");
    s.SottoFunzioneDiventa("Selezione diretta");
    s.Scegli("Operazioni", "Rimuovi tutto");
    s.ListaDiventa("");
    // Escape takes an open window away, and the next click opens none.
    s.Clic(oltre.Piu(5, 5)); // no double click
    s.Punta(fuori);
    s.FotoDiversa();
    s.Premi("Esc");
    s.NienteInCorso();
    s.Clic(Nodo(20));
    s.Punta(fuori);
    s.FotoUguale();
    s.ListaDiventa("");
}

SCENARIO(mouse_zoom_e_spostamenti) {
    Sessione s(amb, Genere::Nodi);
    s.Premi("Ctrl+A");
    s.Premi("Ctrl+Z");
    s.Clic(Nodo(20).Piu(-15, -15));
    s.Clic(Nodo(4).Piu(15, 15));
    DIVENTA(s, s.SiVede(2), false);
    s.SottoFunzioneDiventa("Selezione diretta");
    s.Premi("Ctrl+O");
    s.NodoStaIn(4, Nodo(4));
    s.Premi("Ctrl+S");
    s.Clic(Nodo(3).Piu(-60, -20));
    s.Clic(Nodo(3).Piu(0, -60));
    s.NodoStaIn(4, Nodo(4).Piu(60, -40));
    s.SottoFunzioneDiventa("Selezione diretta");
    const Luogo dopo = Nodo(4).Piu(20, -10);
    s.Trascina(s.disegno, s.Punto(Vuoto()), s.Punto(Vuoto().Piu(-40, 30)), Bottone::Medio,
               [&] { s.NodoStaIn(4, dopo); });
    s.Punta(Vuoto());
    s.NodoStaIn(4, dopo);
    s.Clic(Vuoto(), Bottone::Medio, 2); // fits
    s.NodoStaIn(4, Nodo(4));
    s.Premi("Esc");
    s.NienteInCorso();
    s.Rotella(2);
    s.Fotografa("Disegno");
    s.Clic(Vuoto(), Bottone::Sinistro, 2); // fits nothing
    s.Premi("Ctrl+T");
    s.FunzioneDiventa("Rimuovi selezione");
    s.FotoUguale();
}

// The wheel works on the drawing under it, whatever has the focus; so do the keys of the view, but
// in a text box, where they belong to the text.
SCENARIO(mouse_rotella) {
    Sessione s(amb, Genere::Nodi);
    for (const std::string fuoco : {"Angolo(0)", "OptElem(0)", "NodiAtt"}) {
        s.VaiA(fuoco);
        s.Rotella(9);
        DIVENTA(s, s.SiVede(4), false);
        s.Rotella(-9);
        DIVENTA(s, s.SiVede(4), true);
        s.Fotografa("Disegno");
        s.Premi("Ctrl+Destra");
        fuoco == "Angolo(0)" ? s.FotoUguale() : s.FotoDiversa();
        s.Premi("Ctrl+Sinistra");
        s.FotoUguale();
        VERIFICA(s.HaFuoco(fuoco));
        s.Premi("Ctrl+O");
        s.NodoStaIn(4, Nodo(4));
    }
}

SCENARIO(mouse_menu_di_scelta) {
    Sessione s(amb);
    const auto aperto = [] { return IsWindowVisible(FindWindowW(L"#32768", nullptr)) != FALSE; };
    POINT punto = s.Punto(Mezzo(3, 4));
    s.Clic(Mezzo(3, 4), Bottone::Destro);
    DIVENTA(s, aperto(), true);
    ClientToScreen(s.disegno, &punto);
    RECT r{};
    GetWindowRect(FindWindowW(L"#32768", nullptr), &r);
    AL_PIU(std::abs(r.left - punto.x) + std::abs(r.top - punto.y), 8);
    Manda(Accordo("s")); // Premi waits for a window without a menu
    s.SottoFunzioneDiventa("Sposta");
    DIVENTA(s, aperto(), false);
    s.Premi("Esc");
    s.SottoFunzioneDiventa("");
}

// The outline of what the next click takes goes when something else has the word.
SCENARIO(mouse_e_contorno) {
    Sessione s(amb, Genere::Nodi);
    s.Premi("Ctrl+A");
    s.Clic("StringaSel"); // the pointer is not on the drawing
    const std::string altrove =
        "nessun nodo selezionato\r\nclic su un nodo, o menu Selezioni; Esc termina";
    s.TestoDiventa("LabStato", altrove);
    s.Fotografa("Disegno");
    const auto contorna = [&] {
        s.Punta(Nodo(3));
        s.TestoDiventa("LabStato", "nessun nodo selezionato\r\nclic: nodo 3");
        s.FotoDiversa();
    };
    contorna();
    s.Clic("StringaSel");
    s.FotoUguale();
    contorna();
    s.Premi("Tab");
    s.FotoUguale();
    contorna();
    s.Clic(Nodo(3), Bottone::Destro); // its menu
    s.TestoDiventa("LabStato", altrove);
    Manda(Accordo("Esc"));
    s.Principale();
    contorna();
    s.ApriTrappola();
    s.TestoDiventa("LabStato", altrove);
}
