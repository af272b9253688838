#include "widgets/AnchoredButtonBar.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QAction>
#include <QTest>
#include <gtest/gtest.h>

#include <memory>

namespace {

QString accessibleName(QObject* object)
{
    return QAccessible::queryAccessibleInterface(object)->text(QAccessible::Name);
}

} // namespace

TEST(AnchoredButtonBarTest, ButtonsStandInTheirActionsOrderAndGoWithThem)
{
    AnchoredButtonBar bar;
    bar.resize(300, 40);
    QAction first;
    QAction separator;
    separator.setSeparator(true);
    auto second = std::make_unique<QAction>();
    QAction third;
    bar.addAction(&first);
    bar.addAction(&separator);
    bar.addAction(&third);
    bar.insertAction(&third, second.get());
    bar.show();
    const auto place = [&bar](const QAction& action) {
        const auto* const button = bar.buttonForAction(&action);
        return button->isVisible() ? button->geometry() : QRect();
    };
    EXPECT_EQ(place(first), QRect(0, 1, 40, 39));
    EXPECT_EQ(place(*second), QRect(40, 1, 40, 39));
    EXPECT_EQ(place(third), QRect(80, 1, 40, 39));
    EXPECT_EQ(bar.buttonForAction(&first)->nextInFocusChain(), bar.buttonForAction(second.get()));
    EXPECT_EQ(bar.buttonForAction(&separator), nullptr);

    first.setVisible(false);
    bar.setLayoutDirection(Qt::RightToLeft);
    QApplication::processEvents();
    EXPECT_EQ(place(first), QRect());
    EXPECT_EQ(place(*second), QRect(260, 1, 40, 39));

    // An action may end in its own click.
    QObject::connect(second.get(), &QAction::triggered, &bar, [&] { second.reset(); });
    QTest::mouseClick(bar.buttonForAction(second.get()), Qt::LeftButton);
    bar.removeAction(&first);
    QApplication::processEvents();
    EXPECT_EQ(second, nullptr);
    EXPECT_EQ(bar.buttonForAction(&first), nullptr);
    EXPECT_EQ(place(third), QRect(260, 1, 40, 39));
}

TEST(AnchoredButtonBarTest, AButtonSaysAndDoesWhatItsActionDoes)
{
    AnchoredButtonBar bar;
    QAction action(QStringLiteral("&New Card\u2026"));
    action.setIconText(QStringLiteral("+"));
    action.setShortcut(QKeySequence(Qt::CTRL | Qt::Key_N));
    bar.addAction(&action);
    bar.show();
    auto* const button = bar.buttonForAction(&action);
    EXPECT_EQ(button->text(), QStringLiteral("+"));
    EXPECT_TRUE(button->toolTip().endsWith(QStringLiteral(" (Ctrl+N)")));

    struct Title
    {
        QString text;
        QString name;
    };
    for (const auto& title : {Title{QStringLiteral("&New Card\u2026"), QStringLiteral("New Card")},
                              Title{QStringLiteral("Get &Info..."), QStringLiteral("Get Info")},
                              Title{QStringLiteral("Cut && &Paste"), QStringLiteral("Cut & Paste")},
                              Title{QStringLiteral("New (&N)"), QStringLiteral("New")}}) {
        action.setText(title.text);
        EXPECT_EQ(accessibleName(button), title.name);
    }

    int count = 0;
    QObject::connect(&action, &QAction::triggered, &bar, [&count] { ++count; });
    QTest::keyClick(button, Qt::Key_Space);
    EXPECT_EQ(count, 1);
    action.setEnabled(false);
    EXPECT_FALSE(button->isEnabled());
    QTest::keyClick(button, Qt::Key_Space);
    EXPECT_EQ(count, 1);
}
