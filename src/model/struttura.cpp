#include "model/struttura.h"

namespace telva {

#define TABELLA(nome)                                                                              \
    nome { #nome }

std::int16_t NumPunti;
Tabella<double, kPunti> TABELLA(PuntoX), TABELLA(PuntoY), TABELLA(PuntoZ);
double XMin, YMin, ZMin, XMax, YMax, ZMax;
int PrimoPuntoContato = -1;

std::int16_t NumNodi;
Campi16Nodi TABELLA(PuntoNodo), TABELLA(TipoPtNodo), TABELLA(ColNodo), TABELLA(NomeNodo),
    TABELLA(VincoloNodo);

std::int16_t NumAste;
Campi16Aste TABELLA(NodoIAsta), TABELLA(NodoJAsta), TABELLA(TipoLinAsta), TABELLA(ColAsta),
    TABELLA(NomeAsta), TABELLA(SezioneAsta), TABELLA(SvincoloAsta), TABELLA(OrientAsta),
    TABELLA(DatoAsta5), TABELLA(DatoAsta6);
Tabella<double, kAste> TABELLA(IngIX), TABELLA(IngIY), TABELLA(IngIZ), TABELLA(IngJX),
    TABELLA(IngJY), TABELLA(IngJZ);

std::int16_t NumGusci;
Tabella<std::array<std::int16_t, 5>, kGusci> TABELLA(NodiGuscio);
Campi16Gusci TABELLA(TrattGuscio), TABELLA(NomeGuscio), TABELLA(SpessoreGuscio), TABELLA(ColGuscio);

std::int16_t NumElCont;
Campi16ElCont TABELLA(NumeroElCont), TABELLA(DatoElCont2), TABELLA(NumAsteElCont);
Tabella<std::string, kElCont> TABELLA(NomeElCont);
Tabella2<std::int16_t, kElCont, kAsteElCont> TABELLA(AsteElCont);

std::int16_t NumTestiFinali;
Tabella<std::string, kTesti> TABELLA(TestoFinale);

Campi16Nodi TABELLA(SelNodo), TABELLA(AttNodo);
Campi16Aste TABELLA(SelAsta), TABELLA(AttAsta);
Campi16Gusci TABELLA(SelGuscio), TABELLA(AttGuscio);
Campi16ElCont TABELLA(SelElCont);

#undef TABELLA

int NumeroAngoli(int guscio) { return NodiGuscio[guscio][3] < 0 ? 3 : 4; }

bool StrutturaLetta = false;

void AzzeraStruttura() {
    StrutturaLetta = false;
    NumPunti = NumNodi = NumAste = NumGusci = NumElCont = NumTestiFinali = 0;
    XMin = YMin = ZMin = XMax = YMax = ZMax = 0;
    PrimoPuntoContato = -1;
    for (auto *t : {&PuntoX, &PuntoY, &PuntoZ}) t->Azzera();
    for (auto *t : {&IngIX, &IngIY, &IngIZ, &IngJX, &IngJY, &IngJZ}) t->Azzera();
    // Points, nodes and bars have the same capacity, and so the same table type.
    for (auto *t : {&PuntoNodo, &TipoPtNodo, &ColNodo, &NomeNodo, &VincoloNodo, &SelNodo, &AttNodo,
                    &NodoIAsta, &NodoJAsta, &TipoLinAsta, &ColAsta, &NomeAsta, &SezioneAsta,
                    &SvincoloAsta, &OrientAsta, &DatoAsta5, &DatoAsta6, &SelAsta, &AttAsta})
        t->Azzera();
    NodiGuscio.Azzera();
    for (auto *t : {&TrattGuscio, &NomeGuscio, &SpessoreGuscio, &ColGuscio, &SelGuscio, &AttGuscio})
        t->Azzera();
    for (auto *t : {&NumeroElCont, &DatoElCont2, &NumAsteElCont, &SelElCont}) t->Azzera();
    NomeElCont.Azzera();
    AsteElCont.Azzera();
    TestoFinale.Azzera();
}

} // namespace telva
