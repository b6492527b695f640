#include "model/legfont_cond.h"
#include "model/struttura.h"
#include "sostegno/Banco.h"
#include "startup/avvio.h"
#include "startup/direttori_cond.h"
#include "ui/FormTelva_gestori.h"

#include <algorithm>
#include <fstream>
#include <iterator>

namespace telva::prove {
namespace {

std::string Esempio(const std::string &nome) {
    std::ifstream file(TELVA_ESEMPI "/" + nome, std::ios::binary);
    EXPECT_TRUE(file) << nome;
    return {std::istreambuf_iterator<char>(file), {}};
}

// The same text as other programs write it.
std::string ConCr(std::string testo) {
    std::ranges::replace(testo, '\n', '\r');
    return testo;
}
std::string InUtf16(std::string testo) {
    std::string byte = "\xFF\xFE";
    for (const char c : testo) byte += {c, '\0'};
    return byte;
}

} // namespace

// The example files of the pages for callers are one job, which runs as it stands.
TEST_F(Banco, GliEsempiPerChiChiamaSonoUnLavoroCheFunziona) {
    for (const auto scritto : {+[](std::string testo) { return testo; }, ConCr, InUtf16}) {
        SCOPED_TRACE(scritto("\n"));
        AzzeraProgramma();
        const auto installa = [&](const std::string &cartella, const std::string &file) {
            Scrivi(cartella + "/" + file, scritto(Esempio(file)));
        };
        Scrivi("impostazioni/dirlav", scritto(Radice() + "\\lavori")); // theirs is c:\telva\lavori
        installa("impostazioni", "lavoro");
        installa("progra", "font.001");
        for (const char *file : {"TelOpzio.txt", "TelOpInt.txt"}) installa("custom", file);
        for (const char *file : {"STRUTTUR.STR", "Ingombri.tmp", "spessori", "sezioni_",
                                 "el_conti.tmp", "TelvaIn.txt"})
            installa("lavori/dimo01", file);
        ASSERT_TRUE(Avvia());
        EXPECT_TRUE(messaggi.empty()) << messaggi[0].testo;
        EXPECT_EQ(NomeLavoro, "dimo01");
        EXPECT_EQ(NumNodi, 5);
        EXPECT_EQ(NumAste, 4);
        EXPECT_EQ(NumGusci, 2);
        EXPECT_EQ(NumElCont, 1);
        EXPECT_EQ(IngJZ[3], 450) << "last envelope";
        EXPECT_EQ(NumPtFont['T'], 4);
        EXPECT_FALSE(Esegui(Salva_Click)) << "the program ends";
        const std::string uscita = Esempio("TelvaOut.txt");
        EXPECT_EQ(Leggi("lavori/dimo01/TelvaOut.txt"),
                  uscita.substr(0, uscita.find('\n')) + "\r\n");
    }
}

} // namespace telva::prove
