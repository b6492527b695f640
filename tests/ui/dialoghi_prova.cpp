// The two options dialogs, opened from their menu items.
#include "model/opzioni_cond.h"
#include "sostegno/Recita.h"
#include "ui/controlli/FormOpt.h"
#include "ui/controlli/FormOptInt.h"
#include "ui/controlli/FormTelva.h"
#include <algorithm>
#include <sstream>

namespace telva::prove {

TEST_F(Banco, DialogoTrappola) {
    Apri(Telaio());
    std::string misura = "8";
    for (const std::string caso : {"12=12", "-7.6=8", "7.6=7", "12abc=12", "0.9=0", "abc=0", "=0"})
        for (const bool applica : {false, true}) {
            FormTelva.Trappola.Click();
            EXPECT_EQ(FormOptInt.TextTrappola.Text(), misura);
            FormOptInt.TextTrappola.Text = caso.substr(0, caso.find('='));
            applica ? FormOptInt.Command1.Click() : FormOptInt.KeyUp(27);
            if (applica) misura = caso.substr(caso.find('=') + 1);
            EXPECT_EQ(FormTelva.Trappola.Caption(), "Trappola (" + misura + ")...") << caso;
            EXPECT_TRUE(OpzInt[1] == std::stod(misura) && !FormOptInt.Mostrata());
            Recita(messaggi, applica && misura == "0" ? "!A17" : "!");
        }
}

TEST_F(Banco, DialogoRappresentazione) {
    ModuloOpt &f = FormOpt;
    Apri(Telaio());
    Opzioni[29] = std::string("tenuta");
    Opzioni[24] = 0.0; // no labels at all, to begin with
    const auto opzioni = [] { return std::vector(Opzioni.Dati(), Opzioni.Dati() + 30); };
    const auto prova = [&](std::size_t voce, double valore, const std::function<void()> &cambia) {
        auto attese = opzioni();
        attese[voce] = valore;
        FormTelva.Rappresentazione.Click();
        cambia();
        const bool nodi = f.CheckTxtNodi.Value, aste = f.CheckTxtAste.Value,
                   gusci = f.CheckTxtGusci.Value, continui = f.CheckTxtElCont.Value;
        EXPECT_TRUE(f.SpMinGus.Enabled == f.CheckSpGus.Value && f.TxtAste[4].Enabled == aste &&
                    f.TxtElCont.Enabled == continui &&
                    f.BaseTxt.Enabled == (nodi || aste || gusci || continui));
        f.Salva.Click();
        f.KeyUp(27);
        AzzeraOpzioni();
        LeggiOpzioni();
        EXPECT_TRUE(opzioni() == attese && !f.Mostrata()) << voce;
        Recita(messaggi, "!I5");
    };
    std::istringstream voci("0 1 2 3 6 7 14 15 8 16 17 18 19 20 9 21 22 23 24 25 10 11 13");
    std::size_t voce = 0;
    for (Controllo *c : f.controlli) // the check boxes and text boxes are those entries
        if (auto *spunta = dynamic_cast<CasellaSpunta *>(c); spunta && voci >> voce)
            prova(voce, OpzioneAttiva(static_cast<int>(voce)) ? 0 : 1, [&] { spunta->Premi(); });
        else if (auto *testo = dynamic_cast<CasellaTesto *>(c); testo && voci >> voce)
            prova(voce, 12.5, [&] { testo->Text = "12.5cm"; });
    for (const int colore : {9, 0, 4}) prova(12, colore, [&] { f.LabelCol[colore].Click(); });
    EXPECT_TRUE(f.LabelBordCol[4].Marcato && !f.LabelBordCol[9].Marcato);
    prova(5, 0, [&] { f.EvColNonSel.Seleziona(); });
    prova(5, 1, [&] { f.EvColSel.Seleziona(); });
    for (CasellaTesto *testo : {&f.BaseTxt, &f.AltezzaTxt, &f.Raggio}) { // no size, no labels
        Opzioni[7] = Opzioni[8] = Opzioni[9] = 1.0;
        const Superficie prima = FormTelva.Disegno.Immagine(), &ora = FormTelva.Disegno.Immagine();
        const auto uguale = [&] {
            return std::equal(prima.Riga(0), prima.Riga(0) + prima.Larghezza() * prima.Altezza(),
                              ora.Riga(0));
        };
        FormTelva.Rappresentazione.Click();
        testo->Text = "";
        f.Salva.Click();
        const double testi = OpzioneNumero(7) + OpzioneNumero(8) + OpzioneNumero(9);
        EXPECT_EQ(testi, testo == &f.Raggio ? 3 : 0);
        EXPECT_TRUE(uguale()) << "until the dialog closes";
        f.Chiudi_.Click();
        EXPECT_TRUE(testo != &f.Raggio || !uguale());
    }
    Cancella("custom");
    f.Salva.Click();
    Recita(messaggi, "!I5I5I5I4");
}
} // namespace telva::prove
