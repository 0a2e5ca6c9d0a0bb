#include "conversion/frmRecCount.h"

#include "conversion/frmDataConv.h"
#include "core/shared_state.h"
#include "platform/controls/handler.h"
#include "platform/host/plain_texts.h"
#include "ui_frmRecCount.h"

frmRecCount::frmRecCount(frmDataConv &dialog, const QString &caption, const QString &first,
                         const QString &second)
    : Form(QStringLiteral("frmRecCount")), m_dialog(dialog),
      m_controls(std::make_unique<Ui::frmRecCountControls>())
{
    m_controls->setupUi(this);
    setObjectName(QStringLiteral("frmRecCount"));
    SetDialogFrame();
    host::SetTitle(*this, caption);
    m_controls->Label1->setText(first);
    m_controls->Label2->setText(second);
    SetKeyButtons(nullptr, m_controls->Command1);
    connect(m_controls->Command1, &QPushButton::clicked, this,
            [this] { controls::RunHandler([this] { Command1_Click(); }); });
}

frmRecCount::~frmRecCount() = default;

void frmRecCount::Form_Load()
{
    Shared.StopRequested = 0;
    // Wide enough for its caption, which no layout knows.
    constexpr int besideCaption = 120;
    setMinimumWidth(fontMetrics().horizontalAdvance(host::Title(*this)) + besideCaption);
    adjustSize();
    Centre();
}

bool frmRecCount::Form_QueryUnload(controls::UnloadReason reason)
{
    if (reason != controls::UnloadReason::Frame)
        return true;
    Command1_Click();
    return false;
}

void frmRecCount::Command1_Click()
{
    Shared.StopRequested = 1;
    m_dialog.EnableFileControls(true);
}
