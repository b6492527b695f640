// libFuzzer's entry point; the environment variable BERSAGLIO names the target.
#include "fuzz/bersagli.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *byte, std::size_t quanti) {
    using namespace telva::prove;
    static const auto bersaglio =
        std::ranges::find(Bersagli(), std::getenv("BERSAGLIO"), &Bersaglio::nome);
    Esegui(*bersaglio, {reinterpret_cast<const char *>(byte), quanti});
    return 0;
}
