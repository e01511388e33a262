#include "screens/key_line.h"

KeyLine::KeyLine()
{
    setObjectName("lblKeys");
    setTextFormat(Qt::RichText);
    setForegroundRole(QPalette::PlaceholderText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

void KeyLine::setKeys(const Keys& keys)
{
    QStringList parts;
    for (const auto& [key, meaning] : keys)
        parts.append("<b>" + key.toHtmlEscaped() + "</b>&nbsp;" + meaning.toHtmlEscaped());
    parts.append("<b>F1</b>&nbsp;Help");
    setText(parts.join("&nbsp;&nbsp; "));
    // A narrow screen is as wide as its keys; a wide one may be made smaller.
    constexpr int widest = 640;
    setMinimumWidth(std::min(sizeHint().width(), widest));
}
