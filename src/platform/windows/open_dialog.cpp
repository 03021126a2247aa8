// The open dialog of Windows itself. The toolkit's way to it keeps what was opened in a corner of its own of the
// registry.
#include "platform/codeWindowPos.h"
#include "platform/dialogs.h"
#include "platform/qt_text.h"
#include "platform/windows/com.h"

#include <QTimer>
#include <QWidget>

#include <vector>

#include <windows.h>

#include <shobjidl.h>

namespace tavelo {

namespace {

template <class T>
Com<T> interface_of(IUnknown& object) {
    void* found = nullptr;
    if (FAILED(object.QueryInterface(__uuidof(T), &found))) return nullptr;
    return Com<T>(static_cast<T*>(found));
}

// Null as long as the dialog has not been made.
HWND window_of(IFileDialog& dialog) {
    HWND window = nullptr;
    if (const auto shown = interface_of<IOleWindow>(dialog)) shown->GetWindow(&window);
    return window;
}

Com<IShellItem> folder_item(std::string_view folder) {
    void* item = nullptr;
    SHCreateItemFromParsingName(qt_text(folder).toStdWString().c_str(), nullptr, __uuidof(IShellItem), &item);
    return Com<IShellItem>(static_cast<IShellItem*>(item));
}

void set_kinds(IFileDialog& dialog, const OpenRequest& request) {
    std::vector<std::wstring> texts; // label, patterns, label, patterns
    for (const QString& text : qt_text(request.filter).split('|'))
        texts.push_back(text.toStdWString());
    std::vector<COMDLG_FILTERSPEC> kinds;
    for (std::size_t i = 0; i + 1 < texts.size(); i += 2)
        kinds.push_back({texts[i].c_str(), texts[i + 1].c_str()});
    dialog.SetFileTypes(static_cast<UINT>(kinds.size()), kinds.data());
    dialog.SetFileTypeIndex(static_cast<UINT>(request.filter_index)); // from 1 there as well
}

std::optional<std::string> chosen_file(IFileDialog& dialog) {
    IShellItem* item = nullptr;
    if (FAILED(dialog.GetResult(&item))) return {};
    const Com<IShellItem> file(item);
    wchar_t* path = nullptr;
    if (FAILED(file->GetDisplayName(SIGDN_FILESYSPATH, &path))) return {};
    std::string result = utf8(QString::fromWCharArray(path));
    CoTaskMemFree(path);
    return result;
}

} // namespace

std::optional<std::string> QtOpenDialog::ask(const OpenRequest& request) {
    void* made = nullptr;
    if (FAILED(CoCreateInstance(CLSID_FileOpenDialog, nullptr, CLSCTX_INPROC_SERVER, __uuidof(IFileOpenDialog), &made)))
        return {};
    const Com<IFileOpenDialog> dialog(static_cast<IFileOpenDialog*>(made));
    dialog->SetOptions(FOS_FORCEFILESYSTEM | FOS_FILEMUSTEXIST | FOS_PATHMUSTEXIST | FOS_NOCHANGEDIR);
    dialog->SetTitle(L"Rooster openen");
    dialog->SetFileNameLabel(L"Bestands&naam:");
    dialog->SetOkButtonLabel(L"&Openen");
    set_kinds(*dialog, request);
    if (const auto folder = folder_item(request.folder)) dialog->SetFolder(folder.get());

    // The system makes its window some time after it was asked to; until then there is nothing to put on top.
    constexpr int look_again_ms = 20;
    QTimer raiser;
    QObject::connect(&raiser, &QTimer::timeout, &raiser, [&] {
        const HWND window = window_of(*dialog);
        if (!window) return;
        SetWindowPos(window, HWND_TOPMOST, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE);
        raiser.stop();
    });
    if (staat_er_een_bovenaan()) raiser.start(look_again_ms);

    const QWidget* parent = parent_window(owner_);
    if (FAILED(dialog->Show(parent ? reinterpret_cast<HWND>(parent->window()->winId()) : nullptr))) return {};
    return chosen_file(*dialog);
}

} // namespace tavelo
