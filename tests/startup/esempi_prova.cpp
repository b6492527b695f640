#include "model/legfont_cond.h"
#include "model/struttura.h"
#include "sostegno/Banco.h"
#include "startup/direttori_cond.h"
#include "ui/FormTelva_gestori.h"

#include <filesystem>
#include <fstream>
#include <iterator>

namespace telva::prove {
namespace {

std::string Esempio(const std::string &nome) {
    std::ifstream file(TELVA_ESEMPI "/" + nome, std::ios::binary);
    EXPECT_TRUE(file) << nome;
    return {std::istreambuf_iterator<char>(file), {}};
}

} // namespace

// The example files of the pages for callers are one job, which runs as it stands.
TEST_F(Banco, GliEsempiPerChiChiamaSonoUnLavoroCheFunziona) {
    Scrivi("impostazioni/dirlav", Radice() + "\\lavori"); // theirs is c:\telva\lavori
    Scrivi("impostazioni/lavoro", Esempio("lavoro"));
    Scrivi("progra/font.001", Esempio("font.001"));
    for (const char *file : {"TelOpzio.txt", "TelOpInt.txt"})
        Scrivi(std::string("custom/") + file, Esempio(file));
    for (const char *file :
         {"STRUTTUR.STR", "Ingombri.tmp", "spessori", "sezioni_", "el_conti.tmp", "TelvaIn.txt"})
        Scrivi(std::string("lavori/dimo01/") + file, Esempio(file));
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
    EXPECT_EQ(Leggi("lavori/dimo01/TelvaOut.txt"),
              Esempio("TelvaOut.txt").substr(0, Esempio("TelvaOut.txt").find('\n')) + "\r\n");
}

} // namespace telva::prove
