#include "platform/citazione.h"

#include "model/struttura.h"
#include "platform/tasti.h"
#include "platform/testo.h"
#include "sostegno/Banco.h"
#include "startup/direttori_cond.h"
#include "ui/controlli/FormTelva.h"
#include "view/proiezione.h"

namespace telva::prove {
namespace {

std::string Volte(int quante, const std::string &testo) {
    std::string tutto;
    for (int n = 0; n < quante; ++n) tutto += testo;
    return tutto;
}

} // namespace

TEST(Citazione, DiUnTestoLungoRestanoSessantaCaratteriInteri) {
    const struct {
        const char *quale;
        std::string testo, citato;
    } casi[] = {
        {.quale = "breve", .testo = " a b ", .citato = " a b "},
        {.quale = "sessanta", .testo = Volte(60, "à"), .citato = Volte(60, "à")},
        {.quale = "sessantuno", .testo = Volte(61, "à"), .citato = Volte(59, "à") + "…"},
        {.quale = "di quattro byte", .testo = Volte(99, "😀"), .citato = Volte(59, "😀") + "…"},
        {.quale = "righe e tabulazioni", .testo = "a\r\nb\tc", .citato = "a  b c"},
        {.quale = "byte che non sono UTF-8", .testo = "citt\xE0", .citato = "città"},
    };
    for (const auto &caso : casi) EXPECT_EQ(Cita(caso.testo), caso.citato) << caso.quale;
}

TEST(Citazione, DiUnPercorsoLungoRestanoUnitaENomeDelFile) {
    const std::string normale = "c:\\" + Volte(8, "cartella lunga\\") + "f.txt";
    EXPECT_EQ(CitaPercorso(normale), normale);
    const std::string citato = CitaPercorso("c:\\" + Volte(9000, "è\\") + "f.txt");
    EXPECT_EQ(NumeroCaratteri(citato), 260u);
    EXPECT_EQ(citato.substr(0, 6), "c:\\è\\");
    EXPECT_TRUE(citato.ends_with("\\è\\f.txt")) << citato;
}

TEST(Citazione, UnNumeroGrandeHaLaFormaBreve) {
    EXPECT_EQ(CitaNumero(12.5), "12.5");
    EXPECT_EQ(CitaNumero(1e15), "1000000000000000");
    EXPECT_EQ(CitaNumero(2e15), "2e+15");
    EXPECT_EQ(CitaNumero(-1e20), "-1e+20");
    EXPECT_EQ(CitaNumero(1e-7), "0.0000001");
}

TEST_F(Banco, NessunMessaggioEPiuLungoDiQuantoSiMostra) {
    const std::string lungo(100000, 'x');
    EXPECT_FALSE(Avvia("|diroot=" + lungo + "|"));
    EXPECT_LT(messaggi.back().testo.size(), 400u) << "installation folder";
    messaggi.clear();
    Apri(Telaio());
    FormTelva.Angolo[0].Text = lungo;
    FormTelva.Angolo[0].KeyDown(kTastoInvio);
    EXPECT_NE(messaggi.back().testo.find(" " + Volte(59, "x") + "… ("), std::string::npos)
        << "angle";
    PuntoX[0] = 2e20;
    FormTelva.Disegno.MouseMove(0, 0, XNodo(0), YNodo(0));
    EXPECT_EQ(FormTelva.LabCoord.Caption, "2e+20, 0, 0 [N1]");
    FormTelva.IntX[0].Text = lungo;
    FormTelva.IntX[0].KeyDown(kTastoInvio);
    EXPECT_TRUE(messaggi.back().testo.ends_with(" " + Volte(59, "x") + "…")) << "interval";
    Scrivi("lavori/prova1/STRUTTUR.STR", "Release 4\r\n99999999999999999999\r\n");
    EXPECT_FALSE(Avvia());
    EXPECT_TRUE(messaggi.back().testo.ends_with("troppi punti: 1e+20 (al massimo 20001)"))
        << messaggi.back().testo;
}

} // namespace telva::prove
