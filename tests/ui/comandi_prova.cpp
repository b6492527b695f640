// The command table: menu tree, tool bar and keys, as the user manual lists them.
#include "sostegno/Recita.h"
#include "ui/controlli/FormTelva.h"
#include <algorithm>

namespace telva::prove {

// "name:caption^shortcut;", "*" when ticked; the items of a menu in brackets.
static std::string Albero(const std::vector<VoceMenu *> &voci) {
    std::string s;
    for (const VoceMenu *v : voci) {
        s += v->NomeControllo() + ":" + v->Caption() + (v->Checked ? "*" : "");
        if (v->scorciatoia) s += std::string("^") + v->scorciatoia;
        s += v->voci.empty() ? ";" : "{" + Albero(v->voci) + "}";
        EXPECT_EQ(v->voci.empty(), static_cast<bool>(v->Click)) << v->NomeControllo();
    }
    return s;
}

TEST_F(Banco, MenuBarraETasti) {
    std::string atteso = R"(
File:&File{Salva:&Aggiorna ed Esci^G;Esci:&Esci^E;}Visualizza:&Visualizza{Ottimizza:&Ottimizza^O;
ZoomIn:&Zoom^Z;Sposta:&Sposta^S;Ridis:&Ridisegna^R;}Operazioni:&Operazioni{Aggiungi:&Aggiungi^A;
Rimuovi:&Rimuovi^T;RimTutto:Ri&muovi tutto;Inverti:In&verti selezione;Interrompi:&Interrompi;}
Selezioni:&Selezioni{Finestra:&Finestra;Colore:&Colore{Bianco:Bianco;Blu:Blu;Rosso:Rosso;
Verde:Verde;Giallo:Giallo;VerdeScuro:Verde scuro;Magenta:Magenta;Azzurro:Azzurro;
Arancione:Arancione;TuttiCol:Tutti;}TipoPunto:Tipo &punto{TipoPt1:1;TipoPt2:2;TipoPt3:3;TipoPt4:4;
TuttiPt:Tutti;}TipoLinea:Tipo &linea{TipoLn1:1;TipoLn2:2;TipoLn3:3;TipoLn4:4;TipoLn5:5;
TuttiLn:Tutti;}TipoTratt:Tipo &tratteggio{TipoTr1:1;TipoTr2:2;TipoTr3:3;TipoTr4:4;TipoTr5:5;
TipoTr6:6;TipoTr7:7;TipoTr8:8;TuttiTr:Tutti;}Materiale:&Materiale;SchSezione:Sezione;
SchSpessore:Spessore;SchOrientamento:Orientamento;SchSvincolo:Svincolo;SchVincolo:Vincolo;
Nome:N&ome elemento;Tutto:T&utto;}Opzioni:Op&zioni{VisCoord:&Visualizza Coordinate*;
VisAssi:Visualizza &Assi*;BarraLat:&Barra laterale*;BarraIcone:Barra delle &icone*;
Trappola:Trappola (8)...;Rappresentazione:O&pzioni...;} AggiornaEsci/Aggiorna ed esci/Salva
 Esci/Esci/Esci| Ottimizza/Ottimizza/Ottimizza Zoom/Zoom/ZoomIn Sposta/Sposta/Sposta
 Ridisegna/Ridisegna/Ridis| Aggiungi/Aggiungi selezione/Aggiungi Rimuovi/Rimuovi selezione/Rimuovi
 RimuoviTutto/Rimuovi tutto/RimTutto InvertiSel/Inverti selezione/Inverti
 Interrompi/Interrompi/Interrompi| AggiungiBarraLat/Attiva o disattiva la barra laterale/BarraLat)";
    std::erase(atteso, '\n');
    Apri(Telaio());
    std::string avuto = Albero(FormTelva.barraMenu);
    EXPECT_EQ(std::ranges::count(avuto, ':'), std::ssize(FormTelva.voci))
        << "none outside the tree";
    for (const BottoneBarra &b : FormTelva.Toolbar1.Bottoni)
        avuto += (b.nuovoGruppo ? "| " : " ") + b.chiave + "/" + b.suggerimento + "/" +
                 b.voce->NomeControllo();
    EXPECT_EQ(avuto, atteso);
    for (const std::string chiave : {"Rimuovi", "aggiungi", "Materiale", "InvertiSel"})
        FormTelva.Toolbar1.ButtonClick(chiave); // keys are exact
    Recita(messaggi, "65 #2400000 27 #0000000 27 #0000000 >1,1-9");
}
} // namespace telva::prove
