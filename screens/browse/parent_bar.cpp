#include "screens/browse/parent_bar.h"

#include <QBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

#include "core/locators.h"
#include "core/storage/file_paths.h"
#include "core/text.h"
#include "core/user_settings.h"
#include "screens/command_runner.h"
#include "screens/field_keys.h"
#include "screens/search/inventory_searches.h"

namespace {

constexpr char settingsTable[] = "VEXSETTINGS";

OpenTable openSettings(const Session& session)
{
    return openTable(storage::joinPath(session.UserSettingsPath, "ZORUSER.mdb"), settingsTable);
}

// A branch code with its name; "?" or the button searches.
class BranchBar : public ParentBar
{
public:
    explicit BranchBar(const Session& session) : m_session(session)
    {
        auto* layout = new QHBoxLayout(this);
        layout->setContentsMargins(0, 0, 0, 0);
        auto* caption = new QLabel("&Branch Code:");
        m_code = new QLineEdit;
        m_code->setObjectName("txtILCCODE");
        m_code->setMaxLength(2);
        m_code->setMaximumWidth(m_code->fontMetrics().horizontalAdvance('W') * 5);
        setFieldKeys(*m_code, {.upperCase = true});
        m_name = new QLabel;
        m_name->setObjectName("lblILCNAME");
        m_name->setTextFormat(Qt::PlainText);
        auto* search = new QToolButton;
        search->setObjectName("cmdILCSearch");
        search->setText("...");
        search->setToolTip("Search branch codes (?)");
        search->setFocusPolicy(Qt::NoFocus);
        caption->setBuddy(m_code);
        for (QWidget* part : std::initializer_list<QWidget*>{caption, m_code, search})
            layout->addWidget(part);
        layout->addWidget(m_name, 1);
        setFocusProxy(m_code);
        onPressed(search, [this] { searchBranch(); });
        connect(m_code, &QLineEdit::textEdited, this, [this](const QString& text) {
            if (text.contains('?') || text.contains('/')) {
                m_code->setText(m_shown);
                runCommand([this] { searchBranch(); });
            }
        });
        m_code->installEventFilter(this);
    }

    void load() override
    {
        OpenTable settings = openSettings(m_session);
        m_tag = zorGetUserSetting(settings.rows, m_session.SiteTag, "ILCTAG").toInt();
        OpenTable branches = openBranches();
        branches.rows.Index("ILCTAG");
        if (m_tag != 0 && branches.rows.Seek("=", m_tag))
            show(branches.rows);
        else
            showNone();
    }

    std::vector<KeyField> keys() const override
    {
        return m_tag == 0 ? std::vector<KeyField>() : std::vector<KeyField>{{"ILCTAG", m_tag}};
    }

    void save() override
    {
        OpenTable settings = openSettings(m_session);
        zorSaveUserSetting(settings.rows, m_session.SiteTag, "ILCTAG", m_tag);
    }

    QString hint() const override { return "Select a Valid Branch Code"; }

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::FocusIn)
            Q_EMIT entered();
        if (event->type() == QEvent::FocusOut &&
            static_cast<QFocusEvent*>(event)->reason() != Qt::ActiveWindowFocusReason)
            runCommand([this] { take(m_code->text()); });
        return false;
    }

private:
    OpenTable openBranches() const
    {
        return openTable(storage::joinPath(m_session.JobSitePath, "ZORVEX.mdb"), "ILCLIST");
    }

    void show(storage::Recordset& branches)
    {
        m_tag = intOf(branches["ILCTAG"]);
        m_shown = trimmedTextOf(branches["ILCCODE"]);
        m_code->setText(m_shown);
        m_name->setText(trimmedTextOf(branches["ILCNAME"]));
    }

    void showNone()
    {
        m_tag = 0;
        m_shown.clear();
        m_code->clear();
        m_name->setText(hint());
    }

    void take(const QString& code)
    {
        OpenTable branches = openBranches();
        branches.rows.Index("ILCCODE");
        if (dnNotBlank(code) && branches.rows.Seek("=", code.trimmed()))
            show(branches.rows);
        else
            showNone();
        Q_EMIT left();
    }

    void searchBranch()
    {
        const QString bookmark = zorSearchBranch(m_session.JobSitePath);
        if (dnIsBlank(bookmark))
            return;
        OpenTable branches = openBranches();
        branches.rows.Bookmark(bookmark);
        show(branches.rows);
        Q_EMIT left();
    }

    Session m_session;
    QLineEdit* m_code;
    QLabel* m_name;
    QString m_shown;
    qint32 m_tag = 0;
};

}  // namespace

ParentBar* makeParentBar(const BrowseSession& session)
{
    switch (session.spec().parent.kind) {
        case BrowseParent::Kind::Branch:
            return new BranchBar(session.session());
        default:
            return nullptr;
    }
}
