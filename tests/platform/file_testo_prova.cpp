#include "platform/file_testo.h"
#include "platform/numeri.h"
#include <gtest/gtest.h>
namespace telva::prove {
TEST(FileTesto, UnValoreFinisceAVirgolaBiancoORigaEPoiSiLeggeIlResto) {
    FileTesto file;
    file.ApriContenuto("\xEF\xBB\xBF 1 , -2.5\t3\r\n \r\n4,,5\n1x nan -inf 1e999 1d3 \r\n+7");
    std::string letti, testo; // value, line, outcome (good, malformed, end of file)
    double numero = 0;
    for (int n = 0; n < 13; ++n) {
        const char esito = "bmf"[static_cast<int>(file.LeggiNumero(numero))];
        letti += TestoNumero(numero) + "/" + TestoNumero(file.Riga()) + esito + " ";
    }
    EXPECT_EQ(letti, "1/1b -2.5/1b 3/1b 4/3b 0/3b 5/3b 5/4m 5/4m 5/4m 5/4m 1000/4b 7/5b 7/5f ");
    for (const auto &[byte, riga] : {std::pair{"1 \r\nb", "b"}, {"1, b", " b"}, {"1,\nb", ""}}) {
        file.ApriContenuto(byte);
        EXPECT_TRUE(file.LeggiNumero(numero) == Lettura::Riuscita && file.LeggiRigaTesto(testo));
        EXPECT_EQ(testo, riga);
    }
    file.ApriContenuto("\"a,b\" , citt\xE0 alta ,\r\n\"x\r\ny\"1,\n1.5\n\"7\"\r\n 1 2");
    for (const char *atteso : {"a,b", "città alta", "", "x\r\ny", "1"})
        EXPECT_TRUE(file.LeggiTesto(testo) == Lettura::Riuscita && testo == atteso) << testo;
    Valore valore; // stays at the file's end
    for (const Valore &atteso : {Valore{}, Valore{1.5}, Valore{"7"}, Valore{"1 2"}, Valore{"1 2"}})
        EXPECT_TRUE((file.LeggiValore(valore), valore == atteso)) << atteso.index();
}
} // namespace telva::prove
