#include "platform/archivio.h"
#include "sostegno/Banco.h"
#include "sostegno/DiscoGuasto.h"

#include <algorithm>
#include <filesystem>
#include <set>

namespace telva::prove {
namespace {

namespace fs = std::filesystem;

const std::string kVecchio = "vecchio contenuto\r\n";
const std::string kNuovo = "nuovo contenuto, più lungo del vecchio\r\n";

class Scritture : public Banco {
  protected:
    std::string File() const { return Radice() + "\\f.txt"; }
    fs::path Cartella() const {
        std::string cartella = Radice();
        std::ranges::replace(cartella, '\\', '/');
        return cartella;
    }
    std::set<std::string> Nomi() const {
        std::set<std::string> nomi;
        for (const auto &voce : fs::directory_iterator(Cartella()))
            nomi.insert(voce.path().filename().string());
        return nomi;
    }
};

struct Caso {
    const char *quando;
    bool cEra = true;
    std::size_t spazio = std::string::npos;
    bool nessunFileNuovo = false;
    bool nessunProvvisorio = false;
    int sostituzioniNegate = 0;
    int apertureNegate = 0;
    bool riesce = true;
};

constexpr int kSempre = 1000000;

const Caso kCasi[] = {
    {.quando = "tutto va"},
    {.quando = "file nuovo", .cEra = false},
    {.quando = "disco pieno", .spazio = kVecchio.size(), .riesce = false},
    {.quando = "disco pieno, file nuovo", .cEra = false, .spazio = 9, .riesce = false},
    {.quando = "cartella chiusa", .nessunFileNuovo = true},
    {.quando = "chiusa, file nuovo", .cEra = false, .nessunFileNuovo = true, .riesce = false},
    {.quando = "chiusa e piena",
     .spazio = kVecchio.size(),
     .nessunFileNuovo = true,
     .riesce = false},
    {.quando = "nessun provvisorio", .nessunProvvisorio = true},
    {.quando = "lo stesso, file nuovo", .cEra = false, .nessunProvvisorio = true},
    {.quando = "e pieno", .cEra = false, .spazio = 9, .nessunProvvisorio = true, .riesce = false},
    {.quando = "tenuto un poco, chiuso sul posto",
     .sostituzioniNegate = 5,
     .apertureNegate = kSempre},
    {.quando = "tenuto per sempre", .sostituzioniNegate = kSempre},
    {.quando = "un altro lo scrive", .nessunFileNuovo = true, .apertureNegate = 5},
    {.quando = "e non smette", .nessunFileNuovo = true, .apertureNegate = kSempre, .riesce = false},
};

} // namespace

TEST_F(Scritture, UnaScritturaRiesceInteraOLasciaIlFileCheCEra) {
    for (const Caso &caso : kCasi) {
        Cancella("f.txt");
        if (caso.cEra) Scrivi("f.txt", kVecchio);
        const std::string prima = Leggi("f.txt");
        const std::set<std::string> nomiPrima = Nomi();
        DiscoGuasto disco;
        disco.spazio = caso.spazio;
        disco.nessunFileNuovo = caso.nessunFileNuovo;
        disco.nessunProvvisorio = caso.nessunProvvisorio;
        disco.sostituzioniNegate = caso.sostituzioniNegate;
        disco.apertureNegate = caso.apertureNegate;
        EXPECT_EQ(ScriviFile(File(), kNuovo), caso.riesce) << caso.quando;
        EXPECT_EQ(Leggi("f.txt"), caso.riesce ? kNuovo : prima) << caso.quando;
        EXPECT_EQ(Nomi(), caso.riesce ? std::set<std::string>{"f.txt"} : nomiPrima) << caso.quando;
    }
}

TEST_F(Scritture, UnNomeProvvisorioGiaPresoNonSiTocca) {
    Scrivi("f.txt.~1", "di un programma ucciso");
    Scrivi("f.txt.~2/dentro.txt", "");
    Scrivi("altrui.txt", "altrui");
    std::error_code senzaLegami;
    fs::create_symlink("altrui.txt", Cartella() / "f.txt.~3", senzaLegami);
    DiscoGuasto disco;
    disco.numeri = {"4", "3", "2", "1"};
    EXPECT_TRUE(ScriviFile(File(), kNuovo));
    EXPECT_EQ(Leggi("f.txt"), kNuovo);
    EXPECT_EQ(Leggi("f.txt.~1"), "di un programma ucciso");
    EXPECT_EQ(Leggi("f.txt.~2/dentro.txt"), "");
    EXPECT_EQ(Leggi("altrui.txt"), "altrui");
    EXPECT_EQ(Nomi().count("f.txt.~4"), 0u);
    Disco &vero = DiscoDelSistema();
    EXPECT_NE(vero.NumeroProprio(), vero.NumeroProprio()) << "each time another one";
}

TEST_F(Scritture, UnaCartellaColNomeDelFileNonSiTocca) {
    Scrivi("f.txt/dentro.txt", "");
    EXPECT_FALSE(ScriviFile(File(), kNuovo));
    EXPECT_EQ(Nomi(), std::set<std::string>{"f.txt"});
}

TEST_F(Scritture, SiTolgonoIProvvisoriAbbandonatiENullAltro) {
    for (const char *nome : {"f.txt", "f.txt.~", "f.txt.~1a2b", "f.txt.~nota", "altro.txt.~12"})
        Scrivi(nome, "x");
    Scrivi("f.txt.~c/dentro.txt", "x");
    auto inScrittura = DiscoDelSistema().Crea(File() + ".~77");
    ASSERT_TRUE(inScrittura);
    ASSERT_TRUE(inScrittura->Scrivi(kNuovo));
    TogliProvvisori(File());
    EXPECT_EQ(Nomi(), (std::set<std::string>{"altro.txt.~12", "f.txt", "f.txt.~77", "f.txt.~c",
                                             "f.txt.~nota"}));
    EXPECT_TRUE(inScrittura->Tieni(File()));
    inScrittura.reset();
    EXPECT_EQ(Leggi("f.txt"), kNuovo);
}

TEST_F(Scritture, SiLeggeUnFileENonUnaCartella) {
    Scrivi("cartella/f.txt", "a\r\n");
    struct {
        const char *nome, *contenuto;
        bool eUnFile;
    } constexpr kNomi[] = {{.nome = "\\cartella\\f.txt", .contenuto = "a\r\n", .eUnFile = true},
                           {.nome = "\\cartella", .contenuto = "", .eUnFile = false},
                           {.nome = "\\cartella\\assente", .contenuto = "", .eUnFile = false}};
    for (const auto &n : kNomi) {
        std::string letto = "prima";
        EXPECT_EQ(LeggiFile(Radice() + n.nome, letto), n.eUnFile) << n.nome;
        EXPECT_EQ(EsisteFile(Radice() + n.nome), n.eUnFile) << n.nome;
        EXPECT_EQ(letto, n.contenuto) << n.nome;
    }
}

} // namespace telva::prove
