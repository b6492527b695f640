#include "platform/testo.h"
#include <gtest/gtest.h>
namespace telva::prove {
TEST(Testo, OgniByteTornaUgualeELeMaiuscoleNonSpostanoIByte) {
    std::string tutti;
    for (int b = 0; b < 256; ++b) tutti += static_cast<char>(b);
    const std::string testo = DaWindows1252(tutti) + "Ω–😀";
    EXPECT_EQ(AWindows1252(testo), tutti + "?\x96?");
    EXPECT_TRUE(Maiuscole(testo).size() == testo.size() && Minuscole(testo).size() == testo.size());
    EXPECT_EQ(Minuscole("ÀÈŠŸ×AZ|\xC8") + Maiuscole("àèšÿ÷azß"), "àèšÿ×az|\xC8ÀÈŠŸ÷AZß");
}
} // namespace telva::prove
