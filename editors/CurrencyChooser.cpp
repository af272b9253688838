#include "editors/CurrencyChooser.h"

#include "editors/TypedTextGuard.h"
#include "foundation/Currency.h"
#include "foundation/TypedText.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QCompleter>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QStringListModel>
#include <QStyledItemDelegate>

#include <algorithm>
#include <string>
#include <utility>

namespace {

// In points.
constexpr int listButtonWidth = 24;
constexpr double chevronWidth = 8.0;
constexpr double chevronHeight = 4.0;
constexpr double chevronThickness = 1.5;
constexpr int fadeWidth = 12;
constexpr int titlePadding = 8;
constexpr int rowPadding = 3;

constexpr int visibleRows = 12;

/// How a currency stands in the field and in the list.
QString title(const QString& code)
{
    const auto name = Currency::name(code);
    return name == code ? code : QString(code % u" – " % name);
}

/// How well a currency fits what was typed, in comparable form; 0 is best. Absent when it does not.
std::optional<int> fit(const QString& code, const std::u32string& typed)
{
    if (TypedText::comparable(code).starts_with(typed)) {
        return 0;
    }
    const auto name = TypedText::comparable(Currency::name(code));
    if (name.starts_with(typed)) {
        return 1;
    }
    return name.find(U' ' + typed) == std::u32string::npos ? std::nullopt : std::optional(2);
}

/// Of several currencies that fit, the one that a person means is likelier the local one, and
/// likelier one that is in use than a former one.
enum class Likelihood
{
    Local,
    InUse,
    Former
};

/// The button at the end of the field: a chevron that points down. A text that is too long fades
/// out before it.
class ListButton : public QAbstractButton
{
public:
    explicit ListButton(QWidget* parent)
        : QAbstractButton(parent)
    {
        setFocusPolicy(Qt::NoFocus);
        setCursor(Qt::ArrowCursor);
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        auto ground = QGuiApplication::palette().color(QPalette::Base);
        QLinearGradient fade(QPointF(fadeWidth, 0), QPointF());
        fade.setColorAt(0, ground);
        ground.setAlpha(0);
        fade.setColorAt(1, ground);
        painter.fillRect(QRect(0, 1, fadeWidth, height() - 2), fade);

        painter.setRenderHint(QPainter::Antialiasing);
        QPen pen(palette().color(isDown() ? QPalette::Highlight : QPalette::PlaceholderText),
                 chevronThickness);
        pen.setCapStyle(Qt::RoundCap);
        pen.setJoinStyle(Qt::RoundJoin);
        painter.setPen(pen);
        const QPointF tip((width() + fadeWidth) / 2.0, (height() + chevronHeight) / 2.0);
        painter.drawPolyline(QPolygonF{tip + QPointF(-chevronWidth / 2.0, -chevronHeight), tip,
                                       tip + QPointF(chevronWidth / 2.0, -chevronHeight)});
    }
};

/// The rows of the list, with some air.
class TitleDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        return QStyledItemDelegate::sizeHint(option, index).grownBy({0, rowPadding, 0, rowPadding});
    }

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        // The one that is highlighted needs no ring as well.
        option->state.setFlag(QStyle::State_HasFocus, false);
    }
};

} // namespace

struct CurrencyChooser::Match
{
    QString code;
    Likelihood likelihood;
    int fit;
};

CurrencyChooser::CurrencyChooser(QWidget* parent)
    : StyledTextField(parent)
    , m_titles(new QStringListModel(this))
    , m_completer(new QCompleter(m_titles, this))
{
    m_completer->setCompletionMode(QCompleter::UnfilteredPopupCompletion);
    m_completer->setMaxVisibleItems(visibleRows);
    m_completer->setWidget(this);
    m_completer->popup()->setItemDelegate(new TitleDelegate(this));
    connect(m_completer, qOverload<const QModelIndex&>(&QCompleter::activated), this,
            [this](const QModelIndex& index) { choose(m_offered.value(index.row())); });

    auto* const button = new ListButton(this);
    button->setAccessibleName(tr("Choose Currency"));
    connect(button, &QAbstractButton::clicked, this, &CurrencyChooser::offerAll);
    m_listButton = button;
    auto margins = textMargins();
    margins.setRight(listButtonWidth);
    setTextMargins(margins);

    // Assistive programs set the text without typing it; a list in their way would not help.
    connect(this, &QLineEdit::textChanged, this, &CurrencyChooser::readText);
    connect(this, &QLineEdit::textEdited, this, &CurrencyChooser::offerMatches);
    m_guard = new TypedTextGuard(
        *this, [this] { return readCurrency() ? QString() : tr("There is no such currency."); });
    connect(m_guard, &TypedTextGuard::willCommitEditing, this, &CurrencyChooser::finishEditing);
    connect(this, &QLineEdit::editingFinished, this, &CurrencyChooser::finishEditing);
}

void CurrencyChooser::setCurrencyList(const QStringList& codes)
{
    m_currencies = codes;
}

void CurrencyChooser::setCurrency(const QString& code)
{
    m_currency = code;
    show(code);
}

void CurrencyChooser::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Down || event->key() == Qt::Key_F4) {
        offerAll();
    } else {
        StyledTextField::keyPressEvent(event);
    }
}

void CurrencyChooser::resizeEvent(QResizeEvent* event)
{
    StyledTextField::resizeEvent(event);
    const int buttonWidth = listButtonWidth + fadeWidth;
    m_listButton->setGeometry(width() - buttonWidth, 0, buttonWidth, height());
}

void CurrencyChooser::hideEvent(QHideEvent* event)
{
    m_completer->popup()->hide();
    StyledTextField::hideEvent(event);
}

/// The currency that the text names, empty for an empty text; absent when it names none.
std::optional<QString> CurrencyChooser::readCurrency() const
{
    const auto typed = text().simplified();
    if (typed.isEmpty() || typed == title(m_currency)) {
        return typed.isEmpty() ? QString() : m_currency;
    }
    const auto isNamed = [&typed](const QString& name) {
        return typed.compare(name, Qt::CaseInsensitive) == 0;
    };
    const auto found = std::ranges::find_if(m_currencies, [&](const QString& code) {
        return isNamed(code) || isNamed(title(code)) || isNamed(Currency::name(code));
    });
    if (found != m_currencies.end()) {
        return *found;
    }
    const auto meant = Currency::codeForSign(typed);
    return meant && m_currencies.contains(*meant) ? meant : std::nullopt;
}

void CurrencyChooser::readText()
{
    const auto code = m_isShowing ? std::nullopt : readCurrency();
    if (code) {
        m_currency = *code;
        Q_EMIT currencyDidChange();
    }
}

void CurrencyChooser::finishEditing()
{
    const auto* const list = m_completer->popup();
    if (list->isVisible() && list->currentIndex().isValid()) {
        choose(m_offered.value(list->currentIndex().row()));
    } else if (readCurrency()) {
        show(m_currency);
    } else if (const auto fitting = matches();
               !fitting.empty() &&
               (fitting.size() == 1 || fitting[0].likelihood != fitting[1].likelihood)) {
        choose(fitting.front().code);
    }
}

void CurrencyChooser::choose(const QString& code)
{
    setCurrency(code);
    Q_EMIT currencyDidChange();
}

void CurrencyChooser::show(const QString& code)
{
    const QScopedValueRollback showing(m_isShowing, true);
    setText(title(code));
    // Of a long name the beginning is seen.
    setCursorPosition(0);
}

/// The currencies that fit the text: the likelier first, and of those the ones that fit better.
std::vector<CurrencyChooser::Match> CurrencyChooser::matches() const
{
    std::vector<Match> matches;
    const auto typed = TypedText::comparable(text());
    if (typed.empty()) {
        return matches;
    }
    const auto local = Currency::localCode();
    for (const auto& code : m_currencies) {
        if (const auto found = fit(code, typed)) {
            const auto likelihood = code == local                           ? Likelihood::Local
                                    : Currency::codesInUse().contains(code) ? Likelihood::InUse
                                                                            : Likelihood::Former;
            matches.push_back({code, likelihood, *found});
        }
    }
    std::ranges::stable_sort(
        matches, {}, [](const Match& match) { return std::pair(match.likelihood, match.fit); });
    return matches;
}

void CurrencyChooser::offerMatches()
{
    QStringList fitting;
    for (const auto& match : matches()) {
        fitting.append(match.code);
    }
    offer(fitting, std::max<qsizetype>(fitting.indexOf(readCurrency().value_or(QString())), 0));
}

void CurrencyChooser::offerAll()
{
    setFocus();
    offer(m_currencies, m_currencies.indexOf(m_currency));
}

void CurrencyChooser::offer(const QStringList& codes, qsizetype current)
{
    m_offered = codes;
    auto* const list = m_completer->popup();
    if (codes.isEmpty()) {
        list->hide();
        return;
    }
    QStringList titles;
    titles.reserve(codes.size());
    int widest = 0;
    for (const auto& code : codes) {
        titles.append(title(code));
        widest = std::max(widest, fontMetrics().horizontalAdvance(titles.last()));
    }
    m_titles->setStringList(titles);
    list->setFont(font());
    const int needed = widest + 2 * titlePadding + list->verticalScrollBar()->sizeHint().width();
    m_completer->complete({0, 0, std::max(width(), needed), height()});
    const auto index = m_completer->completionModel()->index(static_cast<int>(current), 0);
    list->setCurrentIndex(index);
    list->scrollTo(index, QAbstractItemView::PositionAtCenter);
}
