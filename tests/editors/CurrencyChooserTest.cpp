#include "editors/CurrencyChooser.h"

#include "editors/TypedTextGuard.h"
#include "foundation/Currency.h"
#include "foundation/RegionalSettings.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QTest>
#include <gtest/gtest.h>

#include <array>

namespace {

/// A form with a chooser that has the focus, and a field behind it.
class CurrencyChooserTest : public testing::Test
{
protected:
    CurrencyChooserTest()
    {
        chooser.setCurrencyList(Currency::isoCodes());
        other.move(0, 40);
        form.show();
        QApplication::setActiveWindow(&form);
        chooser.setCurrency(u"GBP"_qs);
        chooser.setFocus();
    }

    void type(const QString& text)
    {
        chooser.selectAll();
        QTest::keyClicks(&chooser, text);
    }

    /// Null while the list is not open.
    static QAbstractItemView* list()
    {
        return qobject_cast<QAbstractItemView*>(QApplication::activePopupWidget());
    }

    ScopedRegionalSettings regional{{"en_GB", "en_GB", "Europe/London"}};
    QWidget form;
    CurrencyChooser chooser{&form};
    QLineEdit other{&form};
};

} // namespace

TEST_F(CurrencyChooserTest, FindsByCodeAndByTheWordsOfTheName)
{
    EXPECT_EQ(chooser.text(), u"GBP – British Pound"_qs);
    type(u"eur"_qs);
    EXPECT_EQ(chooser.currency(), u"EUR"_qs);

    // The name in the list, chosen with the keyboard.
    type(u"swiss f"_qs);
    ASSERT_NE(list(), nullptr);
    EXPECT_EQ(chooser.currency(), u"EUR"_qs);
    QTest::keyClick(list(), Qt::Key_Return);
    EXPECT_EQ(list(), nullptr);
    EXPECT_EQ(chooser.currency(), u"CHF"_qs);
    EXPECT_EQ(chooser.text(), u"CHF – Swiss Franc"_qs);

    // Several fit: the best first, and Tab takes what is highlighted.
    type(u"pes"_qs);
    ASSERT_NE(list(), nullptr);
    QTest::keyClick(list(), Qt::Key_Down);
    const auto highlighted = list()->currentIndex().data().toString();
    QTest::keyClick(list(), Qt::Key_Tab);
    EXPECT_EQ(chooser.text(), highlighted);
    EXPECT_TRUE(other.hasFocus());
}

TEST_F(CurrencyChooserTest, TakesATextForTheLikeliestCurrency)
{
    struct Row
    {
        const char* locale;
        const char* typed;
        const char* code; ///< "" when the text is refused.
    };
    for (const auto& row : std::to_array<Row>({{"en_GB", "pound", "GBP"},
                                               {"en_US", "dollar", "USD"},
                                               {"en_AU", "dollar", "AUD"},
                                               {"en_GB", "lira", "TRY"},
                                               {"fr_CH", "franc", "CHF"},
                                               {"en_GB", "dem", "DEM"},
                                               {"en_GB", "€", "EUR"},
                                               {"en_GB", "$", "USD"},
                                               {"en_CA", "$", "CAD"},
                                               {"en_GB", "dollar", ""},
                                               {"en_AQ", "pound", ""}})) {
        const ScopedRegionalSettings there({row.locale, row.locale, "Europe/London"});
        chooser.setCurrency(QString());
        chooser.setText(QString::fromUtf8(row.typed));
        EXPECT_EQ(chooser.guard().commitEditing(), *row.code != '\0');
        EXPECT_EQ(chooser.currency().toStdString(), row.code) << row.locale << ' ' << row.typed;
    }
    type(u"pound"_qs);
    ASSERT_NE(list(), nullptr);
    EXPECT_EQ(list()->currentIndex().data().toString(), u"GBP – British Pound"_qs);
}

TEST_F(CurrencyChooserTest, OffersTheWholeListInTheSystemsOrder)
{
    QTest::keyClick(&chooser, Qt::Key_Down);
    ASSERT_NE(list(), nullptr);
    const auto codes = Currency::isoCodes();
    ASSERT_EQ(list()->model()->rowCount(), codes.size());
    EXPECT_EQ(list()->currentIndex().row(), codes.indexOf(u"GBP"_qs));
    for (int row = 0; row < codes.size(); ++row) {
        EXPECT_TRUE(list()->model()->index(row, 0).data().toString().startsWith(codes.at(row)));
    }
    QTest::keyClick(list(), Qt::Key_Escape);
    EXPECT_EQ(chooser.currency(), u"GBP"_qs);
}

TEST_F(CurrencyChooserTest, KeepsWhatNamesNoCurrencyInTheField)
{
    type(u"dollar"_qs);
    QTest::keyClick(list(), Qt::Key_Escape);
    QTest::keyClick(&chooser, Qt::Key_Tab);
    EXPECT_TRUE(chooser.hasFocus());
    EXPECT_EQ(chooser.invalidReason(), u"There is no such currency."_qs);
    EXPECT_EQ(chooser.currency(), u"GBP"_qs);

    type(u"japanese y"_qs);
    QTest::keyClick(list(), Qt::Key_Escape);
    EXPECT_TRUE(chooser.guard().commitEditing());
    EXPECT_EQ(chooser.currency(), u"JPY"_qs);

    // An old record's code, and none at all.
    chooser.setCurrency(u"GOLD"_qs);
    EXPECT_EQ(chooser.text(), u"GOLD"_qs);
    EXPECT_TRUE(chooser.guard().commitEditing());
    EXPECT_EQ(chooser.currency(), u"GOLD"_qs);
    chooser.clear();
    EXPECT_EQ(chooser.currency(), QString());
    EXPECT_TRUE(chooser.guard().commitEditing());
}
