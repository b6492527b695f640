#include "platform/file_testo.h"

#include "platform/numeri.h"

#include <cstdlib>
#include <gtest/gtest.h>

namespace telva::prove {
namespace {

using Elenco = std::vector<std::string>;

FileTesto Aperto(const std::string &byte) {
    FileTesto file;
    file.ApriContenuto(byte);
    return file;
}

Elenco Righe(const std::string &byte) {
    FileTesto file = Aperto(byte);
    Elenco righe;
    for (std::string riga; file.LeggiRigaTesto(riga);) righe.push_back(riga);
    return righe;
}

Elenco Testi(const std::string &byte) {
    FileTesto file = Aperto(byte);
    Elenco testi;
    for (std::string testo; file.LeggiTesto(testo) == Lettura::Riuscita;) testi.push_back(testo);
    return testi;
}

// Numbers as they are read, each with the line it stands on: "1 @2", "malformato @3".
Elenco Numeri(const std::string &byte) {
    FileTesto file = Aperto(byte);
    Elenco numeri;
    double valore = 0;
    for (Lettura esito; (esito = file.LeggiNumero(valore)) != Lettura::FineFile;)
        numeri.push_back((esito == Lettura::Riuscita ? TestoNumero(valore) : "malformato") + " @" +
                         std::to_string(file.Riga()));
    return numeri;
}

// Bytes of a text as UTF-16, with its mark.
enum class Ordine { PrimaAlto, PrimaBasso };
std::string Utf16(const std::u16string &testo, Ordine ordine) {
    std::string byte;
    for (const char16_t c : u"\uFEFF" + testo) {
        const char alto = static_cast<char>(c >> 8), basso = static_cast<char>(c & 0xFF);
        byte += ordine == Ordine::PrimaAlto ? alto : basso;
        byte += ordine == Ordine::PrimaAlto ? basso : alto;
    }
    return byte;
}

const std::string kMarcaUtf8 = "\xEF\xBB\xBF";

} // namespace

TEST(FileTesto, UnNumeroFinisceAVirgolaBiancoORiga) {
    EXPECT_EQ(Numeri(" 1 , -2.5\t3\r\n \r\n4,,5"),
              (Elenco{"1 @1", "-2.5 @1", "3 @1", "4 @3", "0 @3", "5 @3"}));
}

TEST(FileTesto, UnNumeroMalformatoSiConsumaESiProsegue) {
    for (const char *storto : {"1x", "-", "nan", "-inf", "1e999", "1;2"}) {
        EXPECT_EQ(Numeri(std::string(storto) + " 7"), (Elenco{"malformato @1", "7 @1"})) << storto;
        FileTesto file = Aperto(storto);
        double valore = 5;
        file.LeggiNumero(valore);
        EXPECT_EQ(valore, 5) << "the value before " << storto;
    }
}

TEST(FileTesto, DopoUnNumeroSiLeggeOSiSaltaIlRestoDellaRiga) {
    struct Caso {
        const char *byte, *resto;
    };
    for (const Caso &c : {Caso{.byte = "1 \r\nb", .resto = "b"},
                          {.byte = "1, b\nb", .resto = " b"},
                          {.byte = "1,\nb", .resto = ""},
                          {.byte = "1 2 3\nb", .resto = "2 3"},
                          {.byte = "1\rb", .resto = "b"}}) {
        FileTesto file = Aperto(c.byte);
        double numero = 0;
        std::string resto, dopo;
        EXPECT_EQ(file.LeggiNumero(numero), Lettura::Riuscita) << c.byte;
        EXPECT_TRUE(file.LeggiRigaTesto(resto)) << c.byte;
        EXPECT_EQ(resto, c.resto) << c.byte;
        file = Aperto(c.byte);
        file.LeggiNumero(numero);
        file.FinisciRiga();
        EXPECT_TRUE(file.LeggiRigaTesto(dopo)) << c.byte;
        EXPECT_EQ(dopo, "b") << c.byte;
    }
}

TEST(FileTesto, UnTestoFinisceAVirgolaORigaOAlleSueVirgolette) {
    EXPECT_EQ(Testi("\"a,b\" , citt\xE0 alta ,\r\n\"x\r\ny\"1,\n2"),
              (Elenco{"a,b", "città alta", "", "x\r\ny", "1", "", "2"}));
}

TEST(FileTesto, UnValoreHaIlSuoTipo) {
    FileTesto file = Aperto(",1.5\n\"7\"\r\n 1 2");
    for (const Valore &atteso : {Valore{}, Valore{1.5}, Valore{"7"}, Valore{"1 2"}}) {
        Valore valore;
        EXPECT_EQ(file.LeggiValore(valore), Lettura::Riuscita);
        EXPECT_EQ(valore, atteso);
    }
    Valore rimasto{"prima"};
    EXPECT_EQ(file.LeggiValore(rimasto), Lettura::FineFile);
    EXPECT_EQ(rimasto, Valore{"prima"});
}

TEST(FileTesto, CrLfEDueInsiemeChiudonoCiascunoUnaRiga) {
    EXPECT_EQ(Righe("a\rb\nc\r\nd\r\r e\n\nf"), (Elenco{"a", "b", "c", "d", "", " e", "", "f"}));
    EXPECT_EQ(Testi("a\rb\r\"c\rd\"\re"), (Elenco{"a", "b", "c\rd", "e"}));
    EXPECT_EQ(Numeri("1\r2,3\r\r4\r\n\"\r\n\r\n\"5"),
              (Elenco{"1 @1", "2 @2", "3 @2", "4 @4", "malformato @5", "malformato @7"}));
}

TEST(FileTesto, IlByte1AChiudeIlFile) {
    EXPECT_EQ(Righe("uno\r\ndue\x1Atre\r\nquattro"), (Elenco{"uno", "due"}));
    EXPECT_EQ(Righe("uno\r\n\x1A"), Elenco{"uno"});
    EXPECT_EQ(Numeri("1,2\x1A,3"), (Elenco{"1 @1", "2 @1"}));
    EXPECT_EQ(Testi("\"a\x1A\" b"), Elenco{"a"});
    EXPECT_EQ(Righe(kMarcaUtf8 + "uno\x1A due"), Elenco{"uno"});
    EXPECT_EQ(Righe(Utf16(u"uno\u001A due", Ordine::PrimaBasso)), Elenco{"uno"});
}

TEST(FileTesto, LaMarcaDiceComeSonoScrittiITesti) {
    const struct {
        const char *come;
        std::string byte;
        Elenco righe;
    } casi[] = {
        {"senza marca e' Windows-1252", "citt\xE0\r\n\x80", {"città", "€"}},
        {"UTF-8 senza marca e' Windows-1252", "\xC3\xA0", {"Ã\u00A0"}},
        {"UTF-8", kMarcaUtf8 + "città\r\nΩ, 😀", {"città", "Ω, 😀"}},
        {"marca di UTF-8, byte di Windows-1252", kMarcaUtf8 + "citt\xE0 è", {"città è"}},
        {"UTF-16, prima il basso",
         Utf16(u"città\r\nΩ\U0001F600", Ordine::PrimaBasso),
         {"città", "Ω😀"}},
        {"UTF-16, prima l'alto",
         Utf16(u"città\r\nΩ\U0001F600", Ordine::PrimaAlto),
         {"città", "Ω😀"}},
        {"UTF-16, byte di fine riga in altri caratteri",
         Utf16(u"\u0D0A\u1A0D\r\nb", Ordine::PrimaAlto),
         {"\u0D0A\u1A0D", "b"}},
        {"UTF-16, mezze coppie",
         Utf16({0xD83D, u'a', 0xDE00, 0xD83D}, Ordine::PrimaBasso),
         {"\uFFFDa\uFFFD\uFFFD"}},
        {"UTF-16, mezzo carattere in fondo", Utf16(u"a", Ordine::PrimaBasso) + "b", {"a"}},
        {"solo la marca", kMarcaUtf8, {}},
    };
    for (const auto &caso : casi) EXPECT_EQ(Righe(caso.byte), caso.righe) << caso.come;
    EXPECT_EQ(Testi(kMarcaUtf8 + "\"Ω, x\", è"), (Elenco{"Ω, x", "è"}));
    EXPECT_EQ(Numeri(Utf16(u"1,2.5\r\n3", Ordine::PrimaAlto)), (Elenco{"1 @1", "2.5 @1", "3 @2"}));
}

TEST(FileTesto, UnNumeroELoStessoComunqueSiScriva) {
    for (const char *testo :
         {"00012", "+7", "-7", ".5", "5.", "-0.1", "123456789012345", "1234567890123456",
          "9007199254740993", ".12345678901234", ".123456789012345", "123456789.012345",
          "0.30000000000000004", "1.5e2"}) {
        FileTesto file = Aperto(testo);
        double letto = -1;
        EXPECT_EQ(file.LeggiNumero(letto), Lettura::Riuscita) << testo;
        EXPECT_EQ(letto, std::strtod(testo, nullptr)) << testo;
    }
    EXPECT_EQ(Numeri("1.5D2"), Elenco{"150 @1"});
}

TEST(FileTesto, SaltareUnValoreLoSaltaIntero) {
    for (const char *saltato : {"7", "x", "\"a, b\"", "  7", "\r\n 7", "\n\n\"a\"", "-"})
        for (const char *fine : {" 5\n", " , 5\n", "\r\n5"}) {
            FileTesto file = Aperto(std::string(saltato) + fine);
            double numero = 0;
            file.SaltaValore();
            EXPECT_EQ(file.LeggiNumero(numero), Lettura::Riuscita) << saltato << fine;
            EXPECT_EQ(numero, 5) << "after \"" << saltato << fine << '"';
        }
}

} // namespace telva::prove
