#pragma once
// The table of the program's messages.

#include "platform/tabella.h"

#include <string>

namespace telva {

// Places in Messaggi. A refusal of the property lists is named after the property and the kind.
enum IndiceMessaggio {
    kMsgTroppiSpessori = 0,
    kMsgTroppeSezioni = 1,
    kMsgFileIllegibile = 2,
    kMsgMaterialeNodi = 3,
    kMsgOpzioniNonSalvate = 4,
    kMsgOpzioniSalvate = 5,
    kMsgUscitaNonScritta = 6,
    kMsgSezioneNodi = 7,
    kMsgSpessoreNodi = 8,
    kMsgSvincoloNodi = 9,
    kMsgOrientamentoNodi = 10,
    kMsgSezioneGusci = 11,
    kMsgSvincoloGusci = 12,
    kMsgOrientamentoGusci = 13,
    kMsgVincoloGusci = 14,
    kMsgVincoloAste = 15,
    kMsgSpessoreAste = 16,
    kMsgTrappolaNulla = 17,
    kMsgTroppiNumeri = 18,
    kMsgTroppiElCont = 19,
    kMsgSpessoreElCont = 20,
    kMsgSvincoloElCont = 21,
    kMsgVincoloElCont = 22,
    kNumeroMessaggi
};

// Each text has one blank at both ends; empty until CaricaMessaggi has run.
extern Tabella<std::string, kNumeroMessaggi> Messaggi;

void CaricaMessaggi();

} // namespace telva
