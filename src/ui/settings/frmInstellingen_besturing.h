// The controls of the settings dialog that the toolkit does not have.
#pragma once

#include <QComboBox>
#include <QPushButton>
#include <QScrollBar>
#include <QStyledItemDelegate>

#include <cstdint>
#include <optional>
#include <string>

namespace tavelo {

// A button whose own back colour is the sample. Colours are 0xBBGGRR; without one it shows a cross.
class KleurKnop : public QPushButton {
  public:
    explicit KleurKnop(QWidget* parent = nullptr);

    [[nodiscard]] std::optional<std::int32_t> kleur() const { return kleur_; }
    void zet_kleur(std::optional<std::int32_t> kleur);

    [[nodiscard]] QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    std::optional<std::int32_t> kleur_;
};

// A text size in percent. Unlike the toolkit's bar it takes the focus and shows that it has it.
class GrootteBalk : public QScrollBar {
  public:
    explicit GrootteBalk(QWidget* parent = nullptr);

  protected:
    void paintEvent(QPaintEvent* event) override;
};

// The column letters; the box takes one of them or nothing, in capitals however they are typed.
class KolomLijst : public QComboBox {
  public:
    explicit KolomLijst(QWidget* parent = nullptr);

    // Nothing for a letter that the list does not have, until the text changes.
    [[nodiscard]] std::optional<std::string> kolom() const;
    void zet_kolom(const std::optional<std::string>& kolom);

  private:
    bool geeft_niets_ = false;
};

// Draws the names in a font list in their own fonts; a font of symbols keeps the font of the list, to stay readable.
class LettertypeTekenaar : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

  protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};

} // namespace tavelo
