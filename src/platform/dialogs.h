// Message box, open dialog and colour dialog: the system's own on Windows, but for the message box. They belong to the
// operator's window and come out above a participant window that stays on top, so that none of them waits unseen below
// it.
#pragma once

#include "basis/seams.h"

#include <QPointer>
#include <QWidget>

namespace tavelo {

// The window that the dialogs belong to, once it is there. It may go before the dialogs do.
struct DialogOwner {
    QPointer<QWidget> window;
};

class QtMessageBox final : public MessageBox {
  public:
    explicit QtMessageBox(const DialogOwner& owner) : owner_(owner) {}
    void show(std::string_view text) override;

  private:
    const DialogOwner& owner_;
};

class QtOpenDialog final : public OpenDialog {
  public:
    explicit QtOpenDialog(const DialogOwner& owner) : owner_(owner) {}
    [[nodiscard]] std::optional<std::string> ask(const OpenRequest& request) override;

  private:
    const DialogOwner& owner_;
};

class QtColourDialog final : public ColourDialog {
  public:
    explicit QtColourDialog(const DialogOwner& owner) : owner_(owner) {}
    [[nodiscard]] std::optional<std::int32_t> ask(std::int32_t preselected) override;

  private:
    const DialogOwner& owner_;
};

// The window that a dialog belongs to: the settings dialog while it asks for a colour, else the operator's window. Null
// when there is none.
[[nodiscard]] QWidget* parent_window(const DialogOwner& owner);

} // namespace tavelo
