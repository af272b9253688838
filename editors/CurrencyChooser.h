#pragma once

#include "widgets/StyledTextField.h"

#include <QStringList>

#include <optional>
#include <vector>

class QCompleter;
class QStringListModel;
class TypedTextGuard;

/// A field for a currency, which is typed or chosen from a list.
///
/// What is typed may be the code, the sign, or the beginning of a word of the name, in the language
/// of the person; the list then offers the currencies that fit: the local one first, then those
/// that people pay with today, then the former ones. The Down key and the button in the field show
/// the whole list. A text is taken for a currency when the field is left and no other one is as
/// likely: "pound" is the British one in Britain. Any other text is marked with the reason and
/// keeps the focus in the form.
class CurrencyChooser : public StyledTextField
{
    Q_OBJECT

public:
    explicit CurrencyChooser(QWidget* parent = nullptr);

    /// The codes to choose from, in this order. None at first.
    QStringList currencyList() const { return m_currencies; }
    void setCurrencyList(const QStringList& codes);

    /// The code last chosen or set; empty for none.
    QString currency() const { return m_currency; }
    /// Shows the currency. The code need not be one of the list, nor of any currency.
    void setCurrency(const QString& code);

    TypedTextGuard& guard() const { return *m_guard; }

Q_SIGNALS:
    /// The person chose.
    void currencyDidChange();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    std::optional<QString> readCurrency() const;
    void readText();
    void finishEditing();
    void choose(const QString& code);
    void show(const QString& code);

    struct Match;

    std::vector<Match> matches() const;
    void offerMatches();
    void offerAll();
    void offer(const QStringList& codes, qsizetype current);

    QStringList m_currencies;
    QString m_currency;
    bool m_isShowing = false;
    /// What the list shows.
    QStringList m_offered;
    QStringListModel* m_titles;
    QCompleter* m_completer;
    QWidget* m_listButton;
    TypedTextGuard* m_guard = nullptr;
};
