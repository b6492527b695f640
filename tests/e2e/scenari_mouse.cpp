// The pointer on the drawing: pick, windows, zoom, pans, wheel, pop-up menu and read-out.
#include "LavoriProva.h"

using namespace telva::prove;

SCENARIO(mouse_scelta_diretta) {
    Sessione s(amb, 0);
    s.Fai("clic 1; Ctrl+A; f=Aggiungi selezione; ="); // without a function nothing is picked
    s.Fai("clic 3; =3; clic 20+4-4; =3,20; clic 1; =1,1,3,20");
    s.Fai("@1; clic 1~3; =7,7; clic 2~4; =7,7-8; @2; clic 1~4; =31,31; clic 20~4-4+4; =31,31,38");
    s.Fai("@3; clic 1~3; =103; clic 2~4; =101,101,103"); // of two on one bar, the later
    s.Fai("Ctrl+T; f=Rimuovi selezione; clic 1~3; =101,101; @0; clic 20; =1,1,3");
    s.Fai("s=Selezione diretta");
}

SCENARIO(mouse_finestre) {
    Sessione s(amb, 0);
    // No window begins where the one before has ended: that would be a double click.
    for (const std::string angoli :
         {"clic 1-15-15; clic 2+15+15", "clic 2/1+15-15; clic 1/2-15+15",
          "clic 2+15+15; clic 1-15-15", "clic 1/2-15+15; clic 2/1+15-15"})
        s.Fai("Ctrl+A; /S f; s=Seleziona per finestra; " + angoli + "; =1,1-2;" + "Ctrl+T; /S f; " +
              angoli + "; =; s=Seleziona per finestra");
    const std::string tutto = "clic 3/20-15-15; clic 4/2+15+15; ";
    s.Fai("Ctrl+A; /S f; @1; clic 3-15-15; clic 1+15+15; =7,7; clic 3-15-16; clic 2+15+15; "
          "=7,7-8,14");
    s.Fai("@2; clic 3-15-15; clic 2+15+16; =; " + tutto + "=31,31-38; @3; " + tutto);
    s.Fai("=101,101-103; @4; " + tutto + "=; @0; clic 3/20-15-15; clic 4+15+15; =3-4,20");
    // A pick on nothing opens a window by itself, and picking goes on after it.
    s.Fai("Ctrl+A; s=Selezione diretta; clic 1-40-20; s=Seleziona per finestra; foto Disegno;"
          "punta 2+20+20; diversa; clic 2+20+20; =1,1-4,20; s=Selezione diretta");
    s.Fai("Ctrl+T; clic 1-40-20; s=Seleziona per finestra; clic 2+20+20; =3-4,20; clic 4; =3,20");
    // Escape takes an open window away, and the next click opens none.
    s.Fai("foto Disegno; clic 1-40-20; punta 4; diversa; Esc; f=; clic 20; punta 1-40-20; uguale; "
          "=3,20");
}

SCENARIO(mouse_zoom_e_spostamenti) {
    Sessione s(amb, 0);
    s.Fai("Ctrl+A; Ctrl+Z; s=Zoom; clic 3/20-15-15; clic 4+15+15; s=Selezione diretta; vede !2 4;"
          "Ctrl+O; in 4 4; in 1 1; Ctrl+Z; clic 4/20+15-15; clic 3/4-15+15; vede !2 4; Ctrl+O; in "
          "4 4");
    s.Fai("Ctrl+S; s=Sposta; clic 3-60-20; clic 3+0-60; s=Selezione diretta; in 4 4+60-40; in 1 "
          "1+60-40");
    s.p.Trascina(s.disegno, s.Luogo("3-60-60"), s.Luogo("3-100-30"), Bottone::Medio,
                 [&] { s.Fai("in 4 4+20-10"); });
    s.Fai("punta 3-60-60; in 4 4+20-10; medio 3-60-60; in 4 4; in 1 1");
    // The wheel works on the drawing under it, whatever has the focus.
    for (const std::string fuoco : {"Angolo(0)", "OptElem(0)", "NodiAtt"}) {
        s.Fai(
            "vai " + fuoco +
            "; rotella 9; vede !4; rotella -9; vede 4; medio 3-60-60; in 4 4; in 1 1" +
            (fuoco[0] == 'A' ? "" : "; foto Disegno; Ctrl+Destra; diversa; Ctrl+Sinistra; uguale"));
        VERIFICA(s.p.HaFuoco(fuoco));
    }
    // A double click fits with the middle button only.
    s.Fai(
        "Esc; f=; rotella 2; foto Disegno; doppio 3-60-60; Ctrl+T; f=Rimuovi selezione; uguale; =");
}

SCENARIO(mouse_menu_e_coordinate) {
    Sessione s(amb);
    const auto popup = [] {
        HWND menu = FindWindowW(L"#32768", nullptr);
        return menu && IsWindowVisible(menu) ? menu : nullptr;
    };
    POINT punto = s.Luogo("3~4");
    s.Fai("destro 3~4");
    s.p.Aspetta("the pop-up menu", [&] { return popup() != nullptr; });
    RECT r{};
    GetWindowRect(popup(), &r), ClientToScreen(s.disegno, &punto);
    VERIFICA(std::abs(r.left - punto.x) <= 4 && std::abs(r.top - punto.y) <= 4);
    INPUT eventi[2]{};
    for (auto &e : eventi) e.type = INPUT_KEYBOARD, e.ki.wVk = 'S';
    eventi[1].ki.dwFlags = KEYEVENTF_KEYUP;
    SendInput(2, eventi, sizeof(INPUT));
    s.Fai("s=Sposta");
    s.p.Aspetta("the menu to close", [&] { return popup() == nullptr; });
    s.Fai("Esc; s=; punta 2; LabCoord=400, 0, 0 [N2]; punta 2+20; LabCoord=; punta 3-4+4;"
          "LabCoord=0, 0, 300 [N3]; punta 1~3; LabCoord=; punta 20; LabCoord=200, 0, 450 [N20];"
          "clic NodiAtt; vede !20; punta 20; LabCoord="); // hidden nodes are not read
}
