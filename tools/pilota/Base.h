#pragma once
// Texts of Windows and how a step of the driver fails.
#include <functional>
#include <stdexcept>
#include <string>
#include <string_view>

namespace telva::prove {

std::string Utf8(std::wstring_view testo);
std::wstring Largo(std::string_view utf8);

// A step that could not be done; what() says what was awaited and what was seen instead.
struct Fallito : std::runtime_error {
    using std::runtime_error::runtime_error;
};

// Called just before a Fallito is thrown, while the windows still stand (for a screenshot).
extern std::function<void()> alFallimento;

// Told each step as it begins, so that a failure can name the steps before it.
extern std::function<void(const std::string &)> alPasso;

void Passo(const std::string &testo);

[[noreturn]] void Fallisci(const std::string &testo);

} // namespace telva::prove
