// The choice of a branch that keeps an inventory, by its code.
#pragma once

#include "screens/selectors/look_up_field.h"
#include "screens/selectors/selector.h"

inline constexpr char branchHint[] = "Select a Valid Branch Code";

class BranchSelector : public Selector
{
public:
    explicit BranchSelector(const QString& name = "BranchSelector1");

    // Folder of ZORVEX.mdb; given before the tag.
    void setFolder(const QString& folder) { m_folder = folder; }
    // ILCTAG of the branch; 0 for none.
    qint32 tag() const;
    void setTag(qint32 tag);

protected:
    void takeTyped() override { m_branch->takeTyped(); }

private:
    QString m_folder;
    LookUpField* m_branch;
};
