// The kinds of elements and what each of them carries, as the file has it. Cards are those of the
// first storey.
#pragma once

#include "view/colori.h"

#include <array>

namespace telva::generatore {

// What a node belongs to; where several elements meet, the greatest counts.
enum class Ruolo { Rete, Nucleo, Copertura, Giunto, Base, Palo };

struct TipoNodo {
    int Punto, Colore, Vincolo;
};
// By Ruolo.
inline constexpr std::array<TipoNodo, 6> kTipiNodo{{{1, kAzzurro, 0},
                                                    {1, kVerde, 0},
                                                    {3, kArancione, 0},
                                                    {0, kBianco, 0},
                                                    {2, kRosso, 1},
                                                    {2, kBlu, 3}}};

struct TipoAsta {
    int Numero; // of the kind
    int Colore, Linea, Sezione, Svincolo, Orientamento;
    Ruolo Nodi = Ruolo::Giunto;
    bool Trave = false; // hangs below its axis
};
inline constexpr TipoAsta kPilastro{0, kBianco, 0, 1, 0, 1};
inline constexpr TipoAsta kTraveX{1, kGiallo, 0, 2, 0, 3, Ruolo::Giunto, true};
inline constexpr TipoAsta kTraveY{2, kGiallo, 0, 3, 0, 4, Ruolo::Giunto, true};
inline constexpr TipoAsta kSmusso{3, kGiallo, 0, 4, 0, 3, Ruolo::Giunto, true};
inline constexpr TipoAsta kSecondaria{4, kAzzurro, 3, 5, 2, 3, Ruolo::Giunto, true};
inline constexpr TipoAsta kControvento{5, kMagenta, 1, 6, 1, 5};
inline constexpr TipoAsta kPuntone{6, kArancione, 0, 7, 3, 6, Ruolo::Copertura};
inline constexpr TipoAsta kArcareccio{7, kArancione, 2, 8, 2, 6, Ruolo::Copertura};
inline constexpr TipoAsta kMonaco{8, kBianco, 4, 9, 0, 1, Ruolo::Rete};
inline constexpr TipoAsta kCordolo{9, kVerdeScuro, 0, 10, 0, 3};
inline constexpr TipoAsta kPalo{10, kBlu, 4, 11, 0, 0};
inline constexpr TipoAsta kMensola{11, kRosso, 0, 12, 0, 4};
inline constexpr TipoAsta kAstaNascosta{12, kColoreNascosto, 4, 0, 1, 0, Ruolo::Rete};
inline constexpr TipoAsta kAstaAssente{13, kRosso, 1, 6, 0, 0, Ruolo::Rete};
inline constexpr int kSezionePilastroLeggero = 13;

struct TipoGuscio {
    int Colore, Tratteggio, Spessore;
    Ruolo Nodi = Ruolo::Rete;
};
// Those of the floors take turns.
inline constexpr std::array<TipoGuscio, 3> kSolai{
    {{kAzzurro, 1, 1}, {kVerde, 2, 1}, {kGiallo, 3, 1}}};
inline constexpr TipoGuscio kBalcone{kRosso, 4, 2};
inline constexpr TipoGuscio kNucleo{kVerde, 5, 3, Ruolo::Nucleo};
inline constexpr TipoGuscio kParete{kVerdeScuro, 6, 4};
inline constexpr TipoGuscio kFalda{kArancione, 7, 5};
inline constexpr TipoGuscio kLucernario{kAzzurro, 8, 6};
inline constexpr TipoGuscio kCopertina{kVerde, 0, 7};
inline constexpr TipoGuscio kGuscioNascosto{kColoreNascosto + 1, 0, 0};
inline constexpr TipoGuscio kGuscioAssente{kRosso, 6, 4};

} // namespace telva::generatore
