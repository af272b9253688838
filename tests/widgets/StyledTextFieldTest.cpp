#include "widgets/StyledTextField.h"

#include <QAccessible>
#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>
#include <gtest/gtest.h>

TEST(StyledTextFieldTest, AnInvalidFieldSaysWhyToEveryone)
{
    StyledTextField field;
    const auto edgeColor = [&field] {
        return field.grab().toImage().pixelColor(field.width() / 2, 0);
    };
    const auto* const accessible = QAccessible::queryAccessibleInterface(&field);
    const auto quiet = edgeColor();

    const QString reason(QStringLiteral("An amount is a number."));
    field.setInvalidReason(QStringLiteral(" An amount\nis a number. "));
    EXPECT_EQ(field.invalidReason(), reason);
    EXPECT_EQ(field.toolTip(), reason);
    EXPECT_EQ(accessible->text(QAccessible::Description), reason);
    EXPECT_GT(edgeColor().red(), 2 * edgeColor().blue());

    field.setInvalidReason({});
    EXPECT_EQ(accessible->text(QAccessible::Description), QString());
    EXPECT_EQ(field.toolTip(), QString());
    EXPECT_EQ(edgeColor(), quiet);
}

TEST(StyledTextFieldTest, TheGlowFollowsTheFieldAndIsNoPartOfTheWindowForOthers)
{
    QWidget window;
    window.resize(200, 100);
    auto* const field = new StyledTextField(&window);
    auto* const other = new StyledTextField(&window);
    other->move(0, 60);
    window.show();
    QApplication::setActiveWindow(&window);
    const auto* const accessible = QAccessible::queryAccessibleInterface(&window);
    const auto glowRect = [&] {
        for (auto* const child : window.findChildren<QWidget*>()) {
            if (child != field && child != other && child->isVisible()) {
                return child->geometry();
            }
        }
        return QRect();
    };
    EXPECT_EQ(field->height(), 26);
    field->setFocus();
    field->move(20, 20);
    EXPECT_EQ(glowRect(), field->geometry().adjusted(-3, -3, 3, 3));
    EXPECT_EQ(accessible->childCount(), 2);
    other->setFocus();
    EXPECT_EQ(glowRect(), other->geometry().adjusted(-3, -3, 3, 3));
    delete other;
    EXPECT_EQ(glowRect(), QRect());
}

TEST(StyledTextFieldTest, ItsMenuLeavesUndoToTheWindow)
{
    StyledTextField field;
    field.show();
    for (const bool isReadOnly : {false, true}) {
        field.setReadOnly(isReadOnly);
        QContextMenuEvent event(QContextMenuEvent::Mouse, {}, {});
        QApplication::sendEvent(&field, &event);
        auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr);
        QStringList titles;
        for (const auto* const action : menu->actions()) {
            titles.append(action->text().section(u'\t', 0, 0).remove(u'&'));
        }
        menu->close();
        EXPECT_EQ(titles.first(), isReadOnly ? QStringLiteral("Copy") : QStringLiteral("Cut"));
        EXPECT_EQ(titles.last(), QStringLiteral("Select All"));
        EXPECT_FALSE(titles.contains(QStringLiteral("Undo")));
        EXPECT_FALSE(titles.contains(QStringLiteral("Redo")));
    }
}
