// A job with every table at its capacity: not only read, but drawn with all its labels, selected,
// inverted and handed back. One element too many would end the program.
#include "Generatore.h"
#include "ScriviLavoro.h"
#include "model/elementi.h"
#include "model/opzioni_cond.h"
#include "model/struttura.h"
#include "sostegno/Utente.h"
#include "startup/avvio.h"
#include "ui/controlli/FormTelva.h"

#include <algorithm>

namespace telva::prove {

struct LavoroPienoProva : Utente {
    LavoroPienoProva() {
        Installa();
        ScriviLavoro(Telaio()); // its folder
        generatore::ScriviLavoro(Radice() + "/lavori/prova1",
                                 generatore::Genera(generatore::Taglia::Piena));
        AvviaSenzaDireNulla();
    }
};

TEST_F(LavoroPienoProva, SiDisegnaConTuttiITesti) {
    EXPECT_EQ(NumPunti, kPunti);
    EXPECT_EQ(NumNodi, kNodi);
    EXPECT_EQ(NumAste, kAste);
    EXPECT_EQ(NumGusci, kGusci);
    EXPECT_EQ(NumElCont, kElCont);
    for (const int testi : {kOpzTestiNodi, kOpzTestiAste, kOpzTestiGusci, kOpzTestiElCont})
        Opzioni[testi] = 1.0;
    for (const char *angolo : {"0", "90", "30"}) Angolo(Asse::X, angolo);
    EXPECT_EQ(Detto(), "");
}

TEST_F(LavoroPienoProva, SiSelezionaSiInverteESiRestituisce) {
    for (const int tipo : {kNodiTipo, kAsteTipo, kGusciTipo, kElContTipo}) {
        const Elementi &e = ElementiDi(tipo);
        SCOPED_TRACE("kind " + std::to_string(tipo));
        const auto selezionati = [&] {
            int quanti = 0;
            for (int i = 0; i < e.numero; ++i) quanti += e.Selezionato(i);
            return quanti;
        };
        Tipo(tipo);
        Menu("Inverti");
        EXPECT_EQ(selezionati(), e.numero);
        Menu("RimTutto");
        EXPECT_EQ(selezionati(), 0);
        // By name, the last of the table too.
        int ultimo = 0;
        for (int i = 0; i < e.numero; ++i) ultimo = std::max<int>(ultimo, e.nomi[i]);
        Menu("Aggiungi");
        Menu("Nome");
        Elenco(std::to_string(ultimo));
        EXPECT_EQ(Lista(), std::to_string(ultimo));
        Rotella(-3); // a margin around the picture
        const RiquadroDisegno &d = FormTelva.Disegno;
        Menu("Finestra");
        Clic(d.XEvento(d.ScaleLeft), d.YEvento(d.ScaleTop));
        Clic(d.XEvento(d.XDaPixel(d.LarghezzaPixel() - 1)),
             d.YEvento(d.YDaPixel(d.AltezzaPixel() - 1)));
        EXPECT_EQ(selezionati(), e.numero);
    }
    const std::string lista = Lista();
    Menu("Salva");
    EXPECT_EQ(Uscita(), lista + "\r\n");
    EXPECT_EQ(Detto(), "");
}

} // namespace telva::prove
