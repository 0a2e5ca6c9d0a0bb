#pragma once

#include "aids/pure/wildcard_hints.h"
#include "aids/pure/wildcard_pattern.h"
#include "platform/controls/form.h"

#include <memory>

namespace Ui
{
class frmSearch;
}

/// The wildcard builder: describes a headword in words, and writes its pattern into the entry box.
class frmSearch : public controls::Form
{
    Q_OBJECT
    Q_PROPERTY(int IsCancelled READ IsCancelled)
    Q_PROPERTY(QString Hint1Head READ Hint1Head)
    Q_PROPERTY(QString Hint1Tail READ Hint1Tail)
    Q_PROPERTY(QString Hint2Head READ Hint2Head)
    Q_PROPERTY(QString Hint2Tail READ Hint2Tail)
public:
    frmSearch();
    ~frmSearch() override;

    /// 1 once the cancel button was pressed.
    quint8 IsCancelled() const { return m_isCancelled; }
    const QString &Hint1Head() const { return m_hints.Hint1Head; }
    const QString &Hint1Tail() const { return m_hints.Hint1Tail; }
    const QString &Hint2Head() const { return m_hints.Hint2Head; }
    const QString &Hint2Tail() const { return m_hints.Hint2Tail; }

protected:
    void Form_Load() override;
    void Form_Unload(controls::UnloadReason reason) override;

private:
    void Text1_Change();
    void Text2_Change();
    void Text3_Change();
    void Command1_Click();
    void Command2_Click();
    void Command3_Click();
    void ConnectHandlers();
    void ReadHistory();
    /// Shows the second gap with its hint and label, or hides them.
    void ShowSecondGap(bool isShown);
    void ShowHints(const WildcardHints &hints);
    WildcardFields Fields() const;
    HintTexts Texts() const;

    std::unique_ptr<Ui::frmSearch> m_ui;
    quint8 m_isCancelled = 0;
    WildcardHints m_hints;
};
