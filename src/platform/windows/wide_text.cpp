#include "platform/windows/wide_text.h"

#include <windows.h>

namespace tavelo {

std::wstring wide(std::string_view text) {
    const int size = static_cast<int>(text.size());
    std::wstring result(static_cast<std::size_t>(MultiByteToWideChar(CP_UTF8, 0, text.data(), size, nullptr, 0)),
                        L'\0');
    MultiByteToWideChar(CP_UTF8, 0, text.data(), size, result.data(), static_cast<int>(result.size()));
    return result;
}

std::string narrow(std::wstring_view text) {
    const int size = static_cast<int>(text.size());
    const int needed = WideCharToMultiByte(CP_UTF8, 0, text.data(), size, nullptr, 0, nullptr, nullptr);
    std::string result(static_cast<std::size_t>(needed), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.data(), size, result.data(), needed, nullptr, nullptr);
    return result;
}

} // namespace tavelo
