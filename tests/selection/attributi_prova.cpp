// Selection by colour, point, line and hatch type, through the items of the menu.
#include "sostegno/Banco.h"

namespace telva::prove {
void Recita(std::vector<Messaggio> &messaggi, const std::string &copione); // puntatore_prova.cpp

TEST_F(Banco, OgniVoceDiAttributoPassaIlSuoCodice) {
    LavoroProva lavoro = Telaio();
    for (int n = 0; n < 9; ++n) lavoro.nodi[static_cast<std::size_t>(n)].colore = n + 1;
    for (int n = 5; n < 9; ++n) lavoro.gusci.push_back({{0, 1, 4, 3}, n, 9, n});
    lavoro.elementi.push_back({30, "Due colori", {1, 3}});
    Apri(lavoro);
    const std::string copione =
        R"(Aggiungi Nome #1300000 Bianco #1400000 >1,1 Blu >1,1-2 Rosso >1,1-3
        Verde >1,1-4 Giallo >1,1-5 VerdeScuro >1,1-6 Magenta >1,1-7 Azzurro >1,1-8 Arancione >1,1-9
        Rimuovi TipoPt1 >2-4,6-8 TipoPt2 >3-4,7-8 TipoPt3 >4,8 TipoPt4 > Aggiungi TipoLn1 TuttiLn
        TipoTr1 TuttiTr > TuttiPt >1,1-9 Rimuovi TuttiCol > x100 Aggiungi Tutto >1,1-2,4-5,7-8 x200
        k1 Giallo >7-12 TipoLn1 >1,1-2,7-12 TipoLn2 >1,1-4,7-12 TipoLn3 >1,1-12 Rimuovi Rosso
        >1,1-4,7-12 TipoLn4 TipoPt1 TuttiPt TuttiTr >1,1-4,7-12 TipoLn5 >1,1-4 TuttiLn >
        k2 Aggiungi Rosso >1,1,3 Rimuovi Tutto > Aggiungi TipoTr8 >8 TipoTr7 >7-8 TipoTr6 >6-8
        TipoTr5 >5-8 TipoTr4 >4-8 TipoTr3 >3-8 TipoTr2 >2-8 TipoTr1 TuttiTr Rimuovi TuttiPt TuttiLn
        >1,1-8 k3 Aggiungi Blu >20 Bianco >10,10,20 Tutto >10,10,20,30 Rimuovi TipoLn2 TuttiPt
        TuttiTr >10,10,30 TuttiLn > x100 Aggiungi Tutto >30 x200 k4 Rimuovi Rosso > k2 Ridis >2,4-8
        k4 TipoTr7 TuttiLn TuttiPt k2 Ridis >2,4-6,8 k4 Tutto k2 Ridis >)";
    Recita(messaggi, copione);
}
} // namespace telva::prove
