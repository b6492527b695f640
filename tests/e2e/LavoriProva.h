#pragma once
// A small job whose every property is known, and a session of the program on it.
#include "Prove.h"

#include <map>

namespace telva::prove {

/// Makes the job: nodes 1 to 4 and 20, bars 7, 8, 9, 12, 14, shells 31 to 38, continuous elements
/// 101 to 103; coordinates are whole, so that all lie inside the rounded coordinate intervals.
std::filesystem::path LavoroPiccolo(const Ambiente &amb, const std::string &codice = "prova1");

/// Reads and closes a message box: "titolo|testo|icona".
std::string Riquadri(Programma &p);

/// The program on the small job, in a window that fits any screen; no node may be selected yet.
struct Sessione {
    explicit Sessione(const Ambiente &amb, int genere = 1, const std::string &selezione = "");
    /// Does steps separated by ";". A place L is where a node first stood, with an offset in
    /// pixels: "3", "20+4-4", "1~3" (between two), "2/1" (x of one, y of the other).
    ///   /S c 2  @1                       access keys and arrows down in a menu; an element kind
    ///   =1,1  f=  s=Zoom  Nome=testo     waits for the list, the function, a control's text
    ///   Nome:=testo  vai Nome  spazio Nome      goes there by Tab; rewrites it; presses space
    ///   clic Nome, clic L, doppio L, medio L (twice), destro L, punta L, rotella 2
    ///   bottone 14, tip 14 testo         a tool-bar button, and what it says
    ///   on A !B, mostra A !B, spunta A !B, vede 4 !1    enabled, visible, ticked, node seen or not
    ///   in 4 L                           the node stands at a place
    ///   foto Nome, uguale, diversa       compares with the picture taken
    ///   box titolo|testo|icona           reads and closes a message box
    ///   anything else                    keys: "Ctrl+A"
    void Fai(const std::string &passi);
    POINT Luogo(const std::string &luogo) const;
    /// Where an unselected node stands in the drawing, found by its colour.
    std::optional<POINT> Nodo(int nome) const;

    std::filesystem::path lavoro;
    Programma p;
    HWND finestra, disegno;
    std::map<int, POINT> nodi;
    std::string fotoDi;
    std::vector<std::uint32_t> foto;
};

} // namespace telva::prove
