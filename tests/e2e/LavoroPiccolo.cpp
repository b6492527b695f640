#include "LavoroPiccolo.h"

namespace telva::prove {

namespace fs = std::filesystem;

fs::path LavoroPiccolo(const Ambiente &amb, const std::string &codice) {
    const auto cartella = amb.Lavori() / codice;
    fs::remove_all(cartella);
    std::string gusci = "8\n", sezioni = "3\n";
    for (int k = 1; k <= 8; ++k) // hatch k, thickness cards 1 and 2 by turns; the last a triangle
        gusci += (k < 8 ? "0 1 4 2\n" : "2 3 4 -1\n") + std::to_string(k) + ' ' +
                 std::to_string(30 + k) + (k % 2 ? " 1 0 6\n" : " 2 0 6\n");
    ScriviFile(cartella / "STRUTTUR.STR",
               "Release 4.0\n5\n0,0,0\n400,0,0\n0,0,300\n400,0,300\n200,0,450\n"
               "5\n0 0 1\n1 1\n1 1 2\n2 1\n2 2 3\n3 0\n3 3 4\n4 2\n4 0 7\n20 0\n"
               "5\n0,2,0,8\n7 1 0 1 0 0\n1,3,1,8\n8 2 3 1 0 0\n2,4,2,9\n9 1 0 2 0 0\n"
               "3,4,4,9\n12 2 3 2 0 0\n0,1,3,5\n14 3 0 0 0 0\n" +
                   gusci + "0\n0\n0\n0\n");
    for (const char *testa : {"1 0 5", "2 0 6", "3 0 6"})
        sezioni += testa + std::string(" 0 0 0 0 0 0 0 0 0 0 0 0\n");
    ScriviFile(cartella / "sezioni_", sezioni);
    ScriviFile(cartella / "spessori", "2\n1, 5, 0, 20, 1\n2, 7, 0, 25, 1\n");
    ScriviFile(cartella / "el_conti.tmp",
               "3\n101, 0, \"A\"\n2\n7 8\n102, 0, \"B\"\n2\n9 12\n103, 0, \"C\"\n2\n7 9\n");
    return cartella;
}

} // namespace telva::prove
