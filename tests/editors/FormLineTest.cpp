#include "editors/FormLine.h"

#include <gtest/gtest.h>

TEST(FormLineTest, KeepsItsHeightAndCutsOffWhatHasNoRoom)
{
    FormLine line;
    line.setLineCount(2);
    const auto height = line.sizeHint().height();
    line.resize(line.fontMetrics().horizontalAdvance(u"twelve words "_qs), height);
    for (const auto& [text, shown] : {std::pair("short", "short"),
                                      {"twelve words that go on", "twelve words\nthat go on"},
                                      {"", ""}}) {
        line.setText(QString::fromLatin1(text));
        EXPECT_EQ(line.shownText().toStdString(), shown);
        EXPECT_EQ(line.sizeHint().height(), height);
    }
    line.setText(u"twelve words that go on & on & on & on"_qs);
    EXPECT_TRUE(line.shownText().endsWith(u'…')) << line.shownText().toStdString();
    EXPECT_EQ(line.shownText().count(u'\n'), 1);
    line.setLineCount(1);
    EXPECT_TRUE(line.shownText().endsWith(u'…'));
    EXPECT_LT(line.sizeHint().height(), height);
}
