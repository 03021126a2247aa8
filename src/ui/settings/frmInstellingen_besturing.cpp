#include "ui/settings/frmInstellingen_besturing.h"

#include "platform/qt_text.h"
#include "ui/settings/instellingen_dialoog.h"

#include <QFontDatabase>
#include <QLineEdit>
#include <QStyleOptionButton>
#include <QStylePainter>
#include <QValidator>

namespace tavelo {

namespace {

class KolomToets : public QValidator {
  public:
    using QValidator::QValidator;

    [[nodiscard]] State validate(QString& text, int& /*position*/) const override {
        text = text.toUpper();
        return is_kolomkeuze(utf8(text)) ? Acceptable : Invalid;
    }
};

void teken_focus(QStylePainter& painter, const QWidget& besturing, int marge) {
    QStyleOptionFocusRect focus;
    focus.initFrom(&besturing);
    focus.rect = besturing.rect().adjusted(marge, marge, -marge, -marge);
    painter.drawPrimitive(QStyle::PE_FrameFocusRect, focus);
}

} // namespace

KleurKnop::KleurKnop(QWidget* parent) : QPushButton(parent) {
    // Enter is OK, also from here; the space bar opens the colours.
    setAutoDefault(false);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void KleurKnop::zet_kleur(std::optional<std::int32_t> kleur) {
    kleur_ = kleur;
    QPalette palet;
    if (kleur) palet.setColor(QPalette::Button, qt_colour(*kleur));
    setPalette(palet);
    setAccessibleDescription(kleur ? qt_colour(*kleur).name() : QString());
}

QSize KleurKnop::sizeHint() const {
    const int hoogte = QPushButton::sizeHint().height();
    return {hoogte * 9 / 4, hoogte};
}

void KleurKnop::paintEvent(QPaintEvent* /*event*/) {
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    option.palette.setColor(QPalette::Button, parentWidget()->palette().color(QPalette::Button));
    painter.drawControl(QStyle::CE_PushButtonBevel, option);

    constexpr int rand = 4;
    const QRect staal = rect().adjusted(rand, rand, -rand, -rand);
    painter.setPen(palette().color(QPalette::Disabled, QPalette::WindowText));
    if (kleur_) painter.setBrush(palette().color(QPalette::Button));
    painter.drawRect(staal.adjusted(0, 0, -1, -1));
    if (!kleur_) {
        painter.drawLine(staal.topLeft(), staal.bottomRight());
        painter.drawLine(staal.bottomLeft(), staal.topRight());
    }
    if (hasFocus()) teken_focus(painter, *this, 2);
}

GrootteBalk::GrootteBalk(QWidget* parent) : QScrollBar(Qt::Horizontal, parent) {
    setRange(kleinste_tekstgrootte, grootste_tekstgrootte);
    setSingleStep(kleine_stap_tekstgrootte);
    setPageStep(grote_stap_tekstgrootte);
    setValue(begin_tekstgrootte);
    setFocusPolicy(Qt::StrongFocus);
    setInvertedControls(false); // right and up make it larger, not smaller
}

void GrootteBalk::paintEvent(QPaintEvent* event) {
    QScrollBar::paintEvent(event);
    if (!hasFocus()) return;
    QStylePainter painter(this);
    teken_focus(painter, *this, 0);
}

KolomLijst::KolomLijst(QWidget* parent) : QComboBox(parent) {
    for (const std::string& letter : kolomletters())
        addItem(qt_text(letter));
    setEditable(true);
    setInsertPolicy(NoInsert);
    setCompleter(nullptr);
    setValidator(new KolomToets(this));
    setMinimumContentsLength(5);
    setMaxVisibleItems(13);
    connect(this, &QComboBox::currentTextChanged, this, [this] { geeft_niets_ = false; });
}

std::optional<std::string> KolomLijst::kolom() const {
    const std::string tekst = utf8(currentText());
    if (geeft_niets_ || !is_kolomkeuze(tekst)) return std::nullopt;
    return tekst;
}

void KolomLijst::zet_kolom(const std::optional<std::string>& kolom) {
    setCurrentIndex(kolom ? findText(qt_text(*kolom)) : -1);
    if (currentIndex() < 0) clearEditText();
    geeft_niets_ = !kolom;
}

QSize LettertypeTekenaar::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
    // One height for all, so that the list need not load every font of the computer to lay itself out.
    return {option.fontMetrics.horizontalAdvance(index.data().toString()), option.fontMetrics.height() * 8 / 5};
}

void LettertypeTekenaar::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
    QStyledItemDelegate::initStyleOption(option, index);
    const QString naam = index.data().toString();
    if (QFontDatabase::writingSystems(naam).contains(QFontDatabase::Symbol)) return;
    option->font.setFamily(naam);
    option->fontMetrics = QFontMetrics(option->font);
}

} // namespace tavelo
