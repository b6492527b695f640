#pragma once
#include "sostegno/Banco.h"

namespace telva::prove {
// Plays a script: commands by their names; kN element kind; s, d, c: left, right, middle button at
// "x,y"; m move, t the same with the middle button, u its release, b double click, p capture lost;
// = answer, x and z end of an interval, with Enter; w width of the window; a number is a character
// typed. The rest are checks, blanks as "_": > list, # function, sub-function, flags and rubber
// bands, " sub-function shown, % menu Selezioni, [ coordinates, @ zoom window, ! messages by
// number.
void Recita(std::vector<Messaggio> &messaggi, const std::string &copione);
} // namespace telva::prove
