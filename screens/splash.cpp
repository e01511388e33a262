#include "screens/splash.h"

frmVEXSplash::frmVEXSplash(const QString& moduleName, const QString& versionText)
    : QDialog(nullptr, Qt::FramelessWindowHint | Qt::Dialog)
{
    setObjectName("frmVEXSplash");
    setWindowTitle(moduleName);
    auto* frame = new QFrame;
    frame->setFrameShape(QFrame::StyledPanel);
    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->addWidget(frame);
    auto* layout = new QVBoxLayout(frame);
    layout->setContentsMargins(48, 48, 48, 40);
    layout->setSpacing(8);
    const struct
    {
        const char* name;
        QString text;
        double size;
    } lines[] = {{"lblSuite", "Zorvane Suite", 1.2},
                 {"lblModuleName", moduleName, 2.4},
                 {"lblVersion", versionText, 1.0}};
    for (const auto& line : lines) {
        auto* label = new QLabel(line.text);
        label->setObjectName(line.name);
        QFont font = label->font();
        font.setPointSizeF(font.pointSizeF() * line.size);
        label->setFont(font);
        layout->addWidget(label, 0, Qt::AlignHCenter);
    }
    setMinimumSize(420, 220);
}

void frmVEXSplash::keyPressEvent(QKeyEvent*)
{
    close();
}

void frmVEXSplash::mousePressEvent(QMouseEvent*)
{
    close();
}
