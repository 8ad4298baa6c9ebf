#pragma once

class QPainter;
class QStyleOption;

namespace tarvelo::widgets {

// The lines of a menu, in a part of its ink, so that they are seen on a light menu as on the dark
// one of a desktop's bar; in all of it where colours() are bold.

// Its ground, and the line around it.
void paintMenuPanel(QPainter &painter, const QStyleOption &option);
// Between two groups.
void paintMenuSeparator(QPainter &painter, const QStyleOption &option);
// To the menu that an entry opens, as large as the entry's text wants it.
void paintSubmenuArrow(QPainter &painter, const QStyleOption &option, bool isToTheLeft);

} // namespace tarvelo::widgets
