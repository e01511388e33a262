// A folder that is shown, and typed or picked while it is edited.
#pragma once

#include <QWidget>

class QLabel;
class QLineEdit;
class QPushButton;

class FolderField : public QWidget
{
public:
    // The controls are named lbl and txt + `name`, and cmdSelectPath.
    explicit FolderField(const QString& name);

    void setFolder(const QString& folder);
    QString folder() const;  // as shown

    // From here on `entered` is what counts; it begins as `folder`.
    void beginEdit(const QString& folder);
    void endEdit();
    bool isEditing() const;
    QString entered() const;  // trimmed

private:
    void setEditing(bool editing);

    QLabel* m_shown;
    QLineEdit* m_entry;
    QPushButton* m_search;
};
