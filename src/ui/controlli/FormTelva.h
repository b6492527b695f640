#pragma once
// The main window's controls as plain data: what the window shows. What it does stands in
// ui/FormTelva_gestori.

#include "platform/controlli.h"
#include "platform/disegno.h"
#include "ui/controlli/CasellaNumero.h"

namespace telva {

struct ModuloTelva : Modulo {
    ModuloTelva();
    // Texts, ticks and places as at program start (the menu captions come from the command table).
    void Inizio();
    // Puts everything in its place, by the outer size and by which of the two bars are shown.
    void Disponi();

    BarraStrumenti Toolbar1{this, "Toolbar1"};

    Cornice FrameInput{this, "FrameInput"};
    Etichetta Domanda{this, "Domanda", &FrameInput};
    CasellaTesto Risposta{this, "Risposta", &FrameInput};

    RiquadroDisegno Disegno{this, "Disegno"};

    Cornice FrameSel{this, "FrameSel"};
    Schiera<BottoneOpzione, 5> OptElem{this, "OptElem", &FrameSel};

    Cornice FrameAtt{this, "FrameAtt"};
    CasellaSpunta NodiAtt{this, "NodiAtt", &FrameAtt};
    CasellaSpunta AsteAtt{this, "AsteAtt", &FrameAtt};
    CasellaSpunta GusciAtt{this, "GusciAtt", &FrameAtt};
    CasellaSpunta ElSelez{this, "ElSelez", &FrameAtt};
    CasellaSpunta ElNonSelez{this, "ElNonSelez", &FrameAtt};
    Etichetta LabelInt{this, "LabelInt", &FrameAtt};
    Schiera<Etichetta, 3> LabelAsse{this, "LabelAsse", &FrameAtt};
    Schiera<CasellaNumero, 2> IntX{this, "IntX", &FrameAtt};
    Pulsante TuttoX{this, "TuttoX", &FrameAtt};
    Schiera<CasellaNumero, 2> IntY{this, "IntY", &FrameAtt};
    Pulsante TuttoY{this, "TuttoY", &FrameAtt};
    Schiera<CasellaNumero, 2> IntZ{this, "IntZ", &FrameAtt};
    Pulsante TuttoZ{this, "TuttoZ", &FrameAtt};

    Etichetta Label5{this, "Label5"};
    Etichetta StringaSel{this, "StringaSel"};
    Schiera<Etichetta, 3> Label1{this, "Label1"};
    Schiera<Etichetta, 3> Label2{this, "Label2"};
    Schiera<CasellaNumero, 3> Angolo{this, "Angolo"};

    Cornice Frame2{this, "Frame2"};
    Etichetta FunAttiva{this, "FunAttiva", &Frame2};
    Etichetta SottoFunAttiva{this, "SottoFunAttiva", &Frame2};

    // How many are selected, what is hidden, what a click would take: ui/stato tells it.
    Etichetta LabStato{this, "LabStato"};

    Cornice FrameCoord{this, "FrameCoord"};
    Etichetta Label6{this, "Label6", &FrameCoord};
    Etichetta LabCoord{this, "LabCoord", &FrameCoord};

    VoceMenu File{this, "File"}, Salva{this, "Salva"}, Esci{this, "Esci"};
    VoceMenu Visualizza{this, "Visualizza"}, Ottimizza{this, "Ottimizza"}, ZoomIn{this, "ZoomIn"},
        Sposta{this, "Sposta"}, Ridis{this, "Ridis"};
    VoceMenu Operazioni{this, "Operazioni"}, Aggiungi{this, "Aggiungi"}, Rimuovi{this, "Rimuovi"},
        RimTutto{this, "RimTutto"}, Inverti{this, "Inverti"}, Interrompi{this, "Interrompi"};
    VoceMenu Selezioni{this, "Selezioni"}, Finestra{this, "Finestra"};
    VoceMenu Colore{this, "Colore"}, Bianco{this, "Bianco"}, Blu{this, "Blu"}, Rosso{this, "Rosso"},
        Verde{this, "Verde"}, Giallo{this, "Giallo"}, VerdeScuro{this, "VerdeScuro"},
        Magenta{this, "Magenta"}, Azzurro{this, "Azzurro"}, Arancione{this, "Arancione"},
        TuttiCol{this, "TuttiCol"};
    VoceMenu TipoPunto{this, "TipoPunto"}, TipoPt1{this, "TipoPt1"}, TipoPt2{this, "TipoPt2"},
        TipoPt3{this, "TipoPt3"}, TipoPt4{this, "TipoPt4"}, TuttiPt{this, "TuttiPt"};
    VoceMenu TipoLinea{this, "TipoLinea"}, TipoLn1{this, "TipoLn1"}, TipoLn2{this, "TipoLn2"},
        TipoLn3{this, "TipoLn3"}, TipoLn4{this, "TipoLn4"}, TipoLn5{this, "TipoLn5"},
        TuttiLn{this, "TuttiLn"};
    VoceMenu TipoTratt{this, "TipoTratt"}, TipoTr1{this, "TipoTr1"}, TipoTr2{this, "TipoTr2"},
        TipoTr3{this, "TipoTr3"}, TipoTr4{this, "TipoTr4"}, TipoTr5{this, "TipoTr5"},
        TipoTr6{this, "TipoTr6"}, TipoTr7{this, "TipoTr7"}, TipoTr8{this, "TipoTr8"},
        TuttiTr{this, "TuttiTr"};
    VoceMenu Materiale{this, "Materiale"}, SchSezione{this, "SchSezione"},
        SchSpessore{this, "SchSpessore"}, SchOrientamento{this, "SchOrientamento"},
        SchSvincolo{this, "SchSvincolo"}, SchVincolo{this, "SchVincolo"}, Nome{this, "Nome"},
        Tutto{this, "Tutto"};
    VoceMenu Opzioni{this, "Opzioni"}, VisCoord{this, "VisCoord"}, VisAssi{this, "VisAssi"},
        BarraLat{this, "BarraLat"}, BarraIcone{this, "BarraIcone"}, Trappola{this, "Trappola"},
        Rappresentazione{this, "Rappresentazione"};

    // Index of the ticked element-kind button: 0 Nodi, 1 Aste, 2 Gusci, 3 Elementi continui,
    // 4 Pareti (0 when none is ticked).
    int TipoElemento();

  private:
    void TestiIniziali();
    void TestiDegliAssi();
};

extern ModuloTelva FormTelva;

} // namespace telva
