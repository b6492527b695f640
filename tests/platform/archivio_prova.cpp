#include "platform/archivio.h"

#include "platform/archivio_prova.h"
#include "sostegno/Banco.h"

#include <algorithm>
#include <csignal>
#include <filesystem>
#include <sys/resource.h>

namespace telva::prove {
namespace {

struct Archivio : Banco {
    std::string Percorso() const { return Radice() + "\\dati\\f.txt"; }
    long FileNellaCartella() const {
        std::string cartella = Radice() + "\\dati";
        std::replace(cartella.begin(), cartella.end(), '\\', '/');
        const std::filesystem::directory_iterator voci(cartella);
        return std::distance(begin(voci), end(voci));
    }
};

TEST_F(Archivio, UnaScritturaRiesceInteraOLasciaIlFileCheCEra) {
    struct {
        GuastiScrittura guasti;
        bool cEra, riesce;
    } casi[] = {{{}, true, true}, {{}, false, true}, {{true, false}, true, false}, {{true, false}, false, false},
                {{false, true}, true, true}, {{false, true}, false, false}, {{true, true}, true, false}};
    for (const auto &c : casi) {
        Scrivi("dati/f.txt", "vecchio contenuto\r\n");
        if (!c.cEra) Cancella("dati/f.txt");
        const std::string prima = Leggi("dati/f.txt");
        GuastoScrittura() = c.guasti;
        EXPECT_EQ(ScriviFile(Percorso(), "nuovo"), c.riesce);
        EXPECT_EQ(Leggi("dati/f.txt"), c.riesce ? "nuovo" : prima);
        EXPECT_EQ(FileNellaCartella(), c.riesce || c.cEra ? 1 : 0);
    }
}

// The disk fills up half-way through the file.
TEST_F(Archivio, UnaScritturaAMetaRimetteIlContenutoDiPrima) {
    Scrivi("dati/f.txt", "vecchio");
    rlimit prima{};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &prima), 0);
    const auto segnale = std::signal(SIGXFSZ, SIG_IGN);
    for (const bool sulPosto : {false, true}) {
        GuastoScrittura().nessunFileNuovo = sulPosto;
        const rlimit poco{100, prima.rlim_max};
        setrlimit(RLIMIT_FSIZE, &poco);
        const bool riesce = ScriviFile(Percorso(), std::string(5000, 'x'));
        setrlimit(RLIMIT_FSIZE, &prima);
        EXPECT_FALSE(riesce);
        EXPECT_EQ(Leggi("dati/f.txt"), "vecchio");
        EXPECT_EQ(FileNellaCartella(), 1);
    }
    std::signal(SIGXFSZ, segnale);
}

TEST_F(Archivio, UnaCartellaNonEUnFile) {
    Scrivi("dati/f.txt/altro", "x");
    std::string contenuto = "prima";
    EXPECT_FALSE(EsisteFile(Percorso()));
    EXPECT_FALSE(LeggiFile(Percorso(), contenuto) || ScriviFile(Percorso(), "x"));
    EXPECT_EQ(contenuto, "");
    EXPECT_EQ(FileNellaCartella(), 1);
}

} // namespace
} // namespace telva::prove
