#include "fuzz/bersagli.h"
#include "sostegno/Banco.h"
#include <algorithm>
#include <fstream>
namespace telva::prove {
namespace {

// Of each input its length on a line, its bytes, and a line end.
std::vector<std::string> Corpus(const std::string &bersaglio) {
    std::ifstream file(TELVA_FUZZ "/corpus/" + bersaglio, std::ios::binary);
    std::vector<std::string> tutti;
    for (std::streamsize quanti = 0; file >> quanti;) {
        std::string &byte = tutti.emplace_back(static_cast<std::size_t>(quanti), '\0');
        file.get();
        file.read(byte.data(), quanti);
    }
    return tutti;
}

std::string Sostituito(std::string testo, const std::string &che, const std::string &con) {
    for (std::size_t p = 0; (p = testo.find(che, p)) != testo.npos; p += con.size())
        testo.replace(p, che.size(), con);
    return testo;
}

std::vector<std::string> Troncati(const std::string &buono) {
    std::vector<std::string> tutti;
    for (std::size_t p = 0; p < buono.size(); ++p) tutti.push_back(buono.substr(0, p));
    return tutti;
}

// A good file cut at every byte, with other line ends and marks, and with every number made odd.
std::vector<std::string> Guasti(const std::string &buono) {
    const std::string lungo(1 << 20, '1'), bom = "\xEF\xBB\xBF";
    std::vector<std::string> tutti = {Sostituito(buono, "\n", "\r\n"),    bom + buono,
                                      Sostituito(buono, "a", "\xC3\xA0"), lungo + buono,
                                      Sostituito(buono, "1", lungo),      buono + lungo};
    std::ranges::copy(Troncati(buono), std::back_inserter(tutti));
    for (std::size_t p = 0; p < buono.size(); ++p) {
        tutti.push_back(Sostituito(buono, buono.substr(p, 1), std::string(1, '\0')));
        if (std::isdigit(buono[p]) && (p == 0 || !std::isdigit(buono[p - 1])))
            for (const char *numero : {"-1", "0", "101", "301", "2001", "16002", "20002",
                                       "2147483647", "1e999", "1e9223372036854775807", "nan"})
                tutti.push_back(
                    buono.substr(0, p) + numero +
                    buono.substr(std::min(buono.find_first_not_of("0123456789", p), buono.size())));
    }
    return tutti;
}

} // namespace

TEST_F(Banco, CheIlFuzzingHaTrovatoGiraSenzaGuasti) {
    for (const Bersaglio &b : Bersagli()) {
        const std::vector<std::string> corpus = Corpus(b.nome);
        EXPECT_FALSE(corpus.empty()) << b.nome;
        for (const std::string &byte : corpus)
            EXPECT_NO_THROW(prove::Esegui(b, byte))
                << b.nome << ": " << testing::PrintToString(byte);
    }
}

TEST_F(Banco, UnFileGuastoInOgniSuoPuntoNonFaDanni) {
    const Bersaglio &programma = Bersagli().back();
    for (const Bersaglio &b : Bersagli())
        for (const std::string &byte : &b == &programma ? Troncati(b.buono) : Guasti(b.buono))
            EXPECT_NO_THROW(prove::Esegui(b, byte)) << b.nome << ": " << byte.substr(0, 3000);
}
} // namespace telva::prove
