#pragma once
// The job's finite-element structure: parallel tables of fixed capacity, filled once at start-up
// and only read afterwards. Elements are addressed by their place in the file (from 0); the number
// the engineer knows is the name beside it. A name not greater than 0 marks an absent element.
// Coordinates are in the model's length units (cm).

#include "platform/tabella.h"

#include <array>
#include <cstdint>
#include <string>

namespace telva {

inline constexpr int kPunti = 20001, kNodi = 20001, kAste = 20001, kGusci = 16001;
inline constexpr int kElCont = 2000, kAsteElCont = 300, kTesti = 201;

using Campi16Nodi = Tabella<std::int16_t, kNodi>;
using Campi16Aste = Tabella<std::int16_t, kAste>;
using Campi16Gusci = Tabella<std::int16_t, kGusci>;
using Campi16ElCont = Tabella<std::int16_t, kElCont>;

// Coordinate points.
extern std::int16_t NumPunti;
extern Tabella<double, kPunti> PuntoX, PuntoY, PuntoZ;
// Box of the points all of whose coordinates lie within +-5000; zeros when there is none.
extern double XMin, YMin, ZMin, XMax, YMax, ZMax;
// First of those points, -1 when there is none.
extern int PrimoPuntoContato;

// Nodes.
extern std::int16_t NumNodi;
extern Campi16Nodi PuntoNodo, TipoPtNodo, ColNodo, NomeNodo, VincoloNodo;

// Bars; the ends are node places, not names.
extern std::int16_t NumAste;
extern Campi16Aste NodoIAsta, NodoJAsta, TipoLinAsta, ColAsta, NomeAsta, SezioneAsta, SvincoloAsta,
    OrientAsta, DatoAsta5, DatoAsta6;
extern Tabella<double, kAste> IngIX, IngIY, IngIZ, IngJX, IngJY, IngJZ;

// Shells; corner 4 is never filled.
extern std::int16_t NumGusci;
extern Tabella<std::array<std::int16_t, 5>, kGusci> NodiGuscio;
extern Campi16Gusci TrattGuscio, NomeGuscio, SpessoreGuscio, ColGuscio;

// Continuous elements: chains of bars (names in the file, bar places after the conversion).
extern std::int16_t NumElCont;
extern Campi16ElCont NumeroElCont, DatoElCont2, NumAsteElCont;
extern Tabella<std::string, kElCont> NomeElCont;
extern Tabella2<std::int16_t, kElCont, kAsteElCont> AsteElCont;

// Trailing text block of the structure file.
extern std::int16_t NumTestiFinali;
extern Tabella<std::string, kTesti> TestoFinale;

// Flags, exactly 1 or 0. Active means shown and therefore selectable.
extern Campi16Nodi SelNodo, AttNodo;
extern Campi16Aste SelAsta, AttAsta;
extern Campi16Gusci SelGuscio, AttGuscio;
extern Campi16ElCont SelElCont;

// Corners that count for drawing, extents and intervals: 3 when the fourth is negative, else 4.
int NumeroAngoli(int guscio);

// The whole structure has been read. Half of one is not drawn, and nothing is told of it.
extern bool StrutturaLetta;

// Everything back to program start.
void AzzeraStruttura();

} // namespace telva
