// What an engineer sees in a minute on the sample job, as it stands.
#include "Prove.h"

#include <algorithm>

using namespace telva::prove;

SCENARIO(dimostrazione) {
    const auto lavoro = amb.Lavori() / "dimo01";
    std::filesystem::remove(lavoro / "TelvaOut.txt");
    Programma p(amb.telva, amb.Argomento("LAVORO=dimo01"));
    HWND finestra = p.Principale();
    p.Premi("Ctrl+A");
    DIVENTA(p, p.Testo("FunAttiva"), "Aggiungi selezione");
    p.Menu("Alt+S", "o");
    p.Scrivi("Risposta", "1-60");
    p.Premi("Invio");
    p.Aspetta("a selection", [&] { return !p.Testo("StringaSel").empty(); });
    RECT zona{};
    GetWindowRect(p.Controllo("Disegno"), &zona);
    p.Aspetta("selected elements in the drawing", [&] {
        const auto vista = Schermo(&zona).pixel;
        return std::count(vista.begin(), vista.end(), 0x00FFFFU) > 500;
    });
    GetWindowRect(finestra, &zona);
    if (!amb.foto.empty()) ScriviBmp(Schermo(&zona), amb.foto / "dimostrazione.bmp");
    const auto lista = p.Testo("StringaSel");
    p.Premi("Ctrl+G");
    UGUALE(p.AttendiFine(), 0U);
    UGUALE(LeggiByte(lavoro / "TelvaOut.txt").value_or("(no file)"), lista + "\r\n");
}
