// The kinds of elements and what each of them carries, as the file has it. Cards are those of the
// first storey; a colour from 10 on hides the element.
#pragma once

#include <array>

namespace telva::generatore {

// What a node belongs to; where several elements meet, the greatest counts.
enum class Ruolo { Rete, Nucleo, Copertura, Giunto, Base, Palo };

struct TipoNodo {
    int Punto, Colore, Vincolo;
};

struct TipoAsta {
    int Numero; // of the kind
    int Colore, Linea, Sezione, Svincolo, Orientamento;
    Ruolo Nodi = Ruolo::Giunto;
    bool Trave = false; // hangs below its axis
};
inline constexpr TipoAsta kPilastro{0, 1, 0, 1, 0, 1};
inline constexpr TipoAsta kTraveX{1, 5, 0, 2, 0, 3, Ruolo::Giunto, true};
inline constexpr TipoAsta kTraveY{2, 5, 0, 3, 0, 4, Ruolo::Giunto, true};
inline constexpr TipoAsta kSmusso{3, 5, 0, 4, 0, 3, Ruolo::Giunto, true};
inline constexpr TipoAsta kSecondaria{4, 8, 3, 5, 2, 3, Ruolo::Giunto, true};
inline constexpr TipoAsta kControvento{5, 7, 1, 6, 1, 5};
inline constexpr TipoAsta kPuntone{6, 9, 0, 7, 3, 6, Ruolo::Copertura};
inline constexpr TipoAsta kArcareccio{7, 9, 2, 8, 2, 6, Ruolo::Copertura};
inline constexpr TipoAsta kMonaco{8, 1, 4, 9, 0, 1, Ruolo::Rete};
inline constexpr TipoAsta kCordolo{9, 6, 0, 10, 0, 3};
inline constexpr TipoAsta kPalo{10, 2, 4, 11, 0, 0};
inline constexpr TipoAsta kMensola{11, 3, 0, 12, 0, 4};
inline constexpr TipoAsta kAstaNascosta{12, 10, 4, 0, 1, 0, Ruolo::Rete};
inline constexpr TipoAsta kAstaAssente{13, 3, 1, 6, 0, 0, Ruolo::Rete};
inline constexpr int kSezionePilastroLeggero = 13;

struct TipoGuscio {
    int Colore, Tratteggio, Spessore;
    Ruolo Nodi = Ruolo::Rete;
};
inline constexpr std::array<TipoGuscio, 3> kSolai{{{8, 1, 1}, {4, 2, 1}, {5, 3, 1}}}; // by turns
inline constexpr TipoGuscio kBalcone{3, 4, 2};
inline constexpr TipoGuscio kNucleo{4, 5, 3, Ruolo::Nucleo};
inline constexpr TipoGuscio kParete{6, 6, 4};
inline constexpr TipoGuscio kFalda{9, 7, 5};
inline constexpr TipoGuscio kLucernario{8, 8, 6};
inline constexpr TipoGuscio kCopertina{4, 0, 7};
inline constexpr TipoGuscio kGuscioNascosto{11, 0, 0};
inline constexpr TipoGuscio kGuscioAssente{3, 6, 4};

} // namespace telva::generatore
