#include "platform/testo.h"
#include "sostegno/Banco.h"
#include "startup/direttori_cond.h"
namespace telva::prove {
TEST_F(Banco, GliArgomentiELeImpostazioniDannoIlLavoroOFermanoIlProgramma) {
    const std::string R = "|diroot=" + Radice(), K = R + "|", L = Radice() + "\\lavori";
    const std::string file = "! Errore: file " + Radice() + "\\impostazioni\\", J = "ab12cd";
    const std::string D = file + "dirlav errato o mancante", N = file + "lavoro errato o mancante";
    const std::string manca = "X Avvio del programma: argomento non presente";
    const std::string fine = "! Errore: il direttorio dei lavori deve terminare con < \\lavori >";
    const std::string codice = "! Errore: codice di lavoro non ammesso: ", bene = L + "\\ab12cd";
    // clang-format off
    const std::array<std::string, 4> casi[] = { // argument, dirlav, lavoro, job folder or message
        {K, L, J + " \r\n", bene}, {"a " + Maiuscole(K), L + "\\\r\n", " ab12cd\nx", bene},
        {"|diroot=  " + Radice() + " |", " " + L + " ,x", J, bene},
        {R + "\\|", '"' + Maiuscole(L) + "\" , x", J, bene}, {"", L, J, manca},
        {"|LAVORO=ab12cd|", L, J, manca}, {R, L, J, manca},
        {"|diroot=ab|", L, J, "! Errore: file ab\\impostazioni\\dirlav errato o mancante"},
        {K, "", J, D}, {K, "\r\nc:\\x\\lavori", J, D}, {K, "\\lavori\\", J, D},
        {K, "c:\\x\\lavoro\\", J, fine}, {K, L, "", N}, {R + "\\|", L, "ab12c", N},
        {K, L, "ab12cde", N}, {K, L, "..\\..\\", N},
        {K, L, "a/b/cd", N}, {K + "|LAVORO=xy34zw|", L, J, L + "\\xy34zw"},
        {R + "|lavoro=  Xy34zWaltro|LAVORO=un", L, J, L + "\\Xy34zW"},
        {K + "|LAVORO=abc", L, "citt\xE0" "5", L + "\\abc"},
        {K + "|LAVORO=CITTÀ1|", L, J, L + "\\CITTÀ1"},
        {K + "|LAVORO=", L, J, codice}, {K + "|lavoro=   ", L, J, codice},
        {K + "|LAVORO=..\\..\\", L, J, codice + "..\\..\\"},
        {K + "|LAVORO=a|\\..\\", L, J, codice + "a|\\..\\"}};
    // clang-format on
    for (const auto &[argomento, cartella, nome, atteso] : casi) {
        Scrivi("impostazioni/dirlav", cartella);
        Scrivi("impostazioni/lavoro", nome);
        ArgomentoAvvio = argomento;
        messaggi.clear();
        const bool va = Esegui([] { Direttori(), LavoroDaArgomento(); });
        const Messaggio m = va ? Messaggio{DirLavoro, {}, NomeLavoro} : messaggi.at(0);
        const char *icona = va ? "" : m.icona == Icona::Critica ? "X " : "! ";
        EXPECT_EQ(icona + m.testo, atteso) << argomento;
        EXPECT_TRUE(va ? atteso.ends_with(m.titolo) : m.titolo == "ERRORE" && codiceFine == 0);
    }
    EXPECT_TRUE(DirProgra == DirRoot + "\\progra" && DirCustom == DirRoot + "\\custom");
}
} // namespace telva::prove
