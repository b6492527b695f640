// Whole start-ups: argument string, settings, what is shown and selected when the window opens.
#include "sostegno/Banco.h"

#include "ui/controlli/FormTelva.h"

namespace telva::prove {
namespace {

TEST_F(Banco, SiAvviaSulTelaio) {
    Apri(Telaio());
    EXPECT_EQ(FormTelva.Caption(), " - " + Radice() + "\\lavori\\prova1");
}

} // namespace
} // namespace telva::prove
