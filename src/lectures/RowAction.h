#pragma once

#include <QString>

#include <functional>

namespace tarvelo::lectures {

// The edge of a row at which a swipe uncovers its actions. Leading is where a line begins.
enum class RowActionEdge { Leading, Trailing };

// What a row offers at one of its edges.
struct RowAction
{
    enum class Style { Regular, Destructive };

    Style style = Style::Regular;
    QString title;
    // Gets the row that the action was chosen for.
    std::function<void(int row)> handler;
};

} // namespace tarvelo::lectures
