#include "platform/file_testo.h"

#include <gtest/gtest.h>

#include <random>

namespace telva::prove {
namespace {

FileTesto Con(const std::string &byte) {
    FileTesto file;
    file.ApriContenuto(byte);
    return file;
}

TEST(FileTesto, IValoriFinisconoAVirgolaBiancoORiga) {
    struct {
        Lettura esito;
        double valore;
        int riga;
    } attesi[] = {{Lettura::Riuscita, 1, 1},  {Lettura::Riuscita, -2.5, 1}, {Lettura::Riuscita, 3, 1},
                  {Lettura::Riuscita, 4, 3},  {Lettura::Riuscita, 0, 3},    {Lettura::Riuscita, 5, 3},
                  {Lettura::Malformata, 5, 4}, {Lettura::Malformata, 5, 4},  {Lettura::Malformata, 5, 4},
                  {Lettura::Malformata, 5, 4}, {Lettura::Riuscita, 1000, 4}, {Lettura::Riuscita, 7, 5},
                  {Lettura::FineFile, 7, 5}};
    FileTesto file = Con("\xEF\xBB\xBF 1 , -2.5\t3\r\n \r\n4,,5\n1x nan -inf 1e999 1d3 \r\n+7");
    double valore = 0;
    for (const auto &a : attesi) {
        EXPECT_EQ(file.LeggiNumero(valore), a.esito) << a.valore;
        EXPECT_EQ(valore, a.valore);
        EXPECT_EQ(file.Riga(), a.riga) << a.valore;
    }
}

// What a line read finds after a value: the next line, unless the record goes on.
TEST(FileTesto, DopoUnValoreSiLeggeIlRestoDellaRiga) {
    const std::pair<const char *, const char *> casi[] = {
        {"1\r\nb\r\n", "b"}, {"1  \nb", "b"}, {"1, b\n", " b"}, {"1 b c\r\nd", "b c"}, {"1,\nb", ""}, {"1\n\nb", ""}};
    for (const auto &[testo, attesa] : casi) {
        FileTesto file = Con(testo);
        double valore = 0;
        std::string riga = "-";
        file.LeggiNumero(valore);
        EXPECT_TRUE(file.LeggiRigaTesto(riga));
        EXPECT_EQ(riga, attesa) << testo;
    }
    FileTesto file = Con("1 resto\r\ndopo");
    double valore = 0;
    std::string_view riga;
    file.LeggiNumero(valore);
    file.FinisciRiga();
    EXPECT_TRUE(file.LeggiRiga(riga) && riga == "dopo" && file.Riga() == 2);
    EXPECT_FALSE(file.LeggiRiga(riga));
}

TEST(FileTesto, ITestiPerdonoLeVirgoletteEIValoriHannoIlLoroTipo) {
    FileTesto file = Con("\"a,b\" , citt\xE0 alta ,\r\n\"x\r\ny\"1");
    for (const char *atteso : {"a,b", "città alta", "", "x\r\ny", "1"}) {
        std::string testo;
        EXPECT_EQ(file.LeggiTesto(testo), Lettura::Riuscita);
        EXPECT_EQ(testo, atteso);
    }
    file = Con("\r\n12.5\r\n\"7\"\r\n 1 2 \r\n");
    for (const Valore &atteso : {Valore{}, Valore{12.5}, Valore{"7"}, Valore{"1 2"}}) {
        Valore valore = 99.0;
        EXPECT_EQ(file.LeggiValore(valore), Lettura::Riuscita);
        EXPECT_EQ(valore, atteso);
    }
    Valore valore = 99.0;
    EXPECT_EQ(file.LeggiValore(valore), Lettura::FineFile);
    EXPECT_EQ(valore, Valore{99.0});
}

TEST(FileTesto, OgniLetturaAvanzaSuQualunqueByte) {
    std::mt19937 caso(3);
    for (int n = 0; n < 3000; ++n) {
        std::string byte(caso() % 12, ' ');
        for (char &c : byte) c = std::string("\" ,\r\n\t-.0e1x\0\xEF", 15)[caso() % 15];
        FileTesto file = Con(byte);
        Valore valore;
        std::string testo;
        double numero = 0;
        std::size_t letture = 0;
        for (; !file.Finito() && letture <= byte.size(); ++letture) {
            switch (caso() % 4) {
            case 0: file.LeggiNumero(numero); break;
            case 1: file.LeggiTesto(testo); break;
            case 2: file.LeggiValore(valore); break;
            default: file.SaltaValore();
            }
        }
        EXPECT_LE(letture, byte.size()) << byte;
    }
}

} // namespace
} // namespace telva::prove
