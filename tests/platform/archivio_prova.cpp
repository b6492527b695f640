#include "platform/archivio_prova.h"
#include "platform/archivio.h"
#include "sostegno/Banco.h"
#include <algorithm>
#include <filesystem>
namespace telva::prove {
TEST_F(Banco, UnaScritturaRiesceInteraOLasciaIlFileCheCEra) {
    std::string cartella = Radice();
    std::replace(cartella.begin(), cartella.end(), '\\', '/');
    for (int caso = 0; caso < 8; ++caso) {
        const bool cEra = caso & 1, pieno = caso & 2, nessunNuovo = caso & 4;
        if (cEra) Scrivi("f.txt", "vecchio contenuto\r\n");
        const std::string prima = Leggi("f.txt");
        GuastoScrittura() = {pieno, nessunNuovo};
        const bool riuscita = ScriviFile(Radice() + "\\f.txt", "nuovo");
        EXPECT_EQ(riuscita, !pieno && (cEra || !nessunNuovo)) << caso;
        EXPECT_EQ(Leggi("f.txt"), riuscita ? "nuovo" : prima) << caso;
        Cancella("f.txt");
        EXPECT_TRUE(std::filesystem::is_empty(cartella)) << "temporary left, " << caso;
    }
}
} // namespace telva::prove
