#pragma once
// Message boxes and the end of the program: the two things that leave the flow of events.

#include <functional>
#include <string>

namespace telva {

enum class Gravita { Critica, Esclamazione, Informazione };

// Modal box with one OK button.
void MostraMessaggio(const std::string &testo, Gravita gravita, const std::string &titolo);

// Exit codes: the user ended the program, or it ended by itself (a bad start, a fault).
inline constexpr int kFineUtente = 0, kFineDaSe = 1;

// Ends the program at once; nothing more is written. Does not return.
[[noreturn]] void FineProgramma(int codice = kFineUtente);

// Runs one event. A fault inside ends in one critical box titled "ERRORE" and in the end of the
// program with exit code 1.
void EseguiProtetto(const std::function<void()> &evento);

// What stands behind the two procedures above; the window system and the tests put theirs.
using FunzioneMessaggio = std::function<void(const std::string &, Gravita, const std::string &)>;
using FunzioneFine = std::function<void(int)>;
void ImpostaMessaggi(FunzioneMessaggio mostra);
void ImpostaFine(FunzioneFine fine);

} // namespace telva
