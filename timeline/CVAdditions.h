#pragma once

#include "timeline/NSColorList.h"

#include <QColor>

/// The palette: every colour of the main window that is not the desktop's own. Texts and the
/// borders of panels are darker where the person asks for high contrast.
namespace CVAdditions {

QColor cvPanelGradientStartColor();
QColor cvPanelGradientEndColor();
QColor cvPanelDarkBorderColor();
QColor cvPanelDarkerBorderColor();

QColor cvTimelineHeaderTextColor();
QColor cvTimelineHeaderYearTextColor();
QColor cvSelectedGlowColor();
QColor cvTimelineBackgroundLightColor();
QColor cvTimelineBackgroundDarkColor();

QColor cvCardBackgroundColorForHighlightedState(bool highlighted);
QColor cvCardTitleColorForHighlightedState(bool highlighted);
QColor cvCardSubtitleColorForHighlightedState(bool highlighted);
QColor cvTimelineBorderColorForHighlightedState(bool highlighted);

/// The colours that show how much of its credit a card uses: blue below a `ratio` (balance to
/// limit) of 0.3, orange below 0.6, red from there on and where the ratio is not a number; paler
/// unless highlighted. Keys: "fill", "dark", "light", "highlight", "graph" and "graphHighlight".
NSColorList cvColorsWithCreditUsageRatio(double ratio, bool highlighted);

} // namespace CVAdditions
