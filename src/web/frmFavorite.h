#pragma once

#include "platform/controls/form.h"

#include <QStringList>
#include <memory>

namespace Ui
{
class frmFavorite;
}

/// The favourites: web sites to come back to. The list is written when the form is unloaded, whatever
/// closes it.
class frmFavorite : public controls::Form
{
    Q_OBJECT
public:
    frmFavorite();
    ~frmFavorite() override;

    /// Fills list and addresses from a file of the application folder, which is made empty where it is
    /// missing, and keeps the file's path. A failure leaves both.
    void LoadFavorites(const QString &fileName);

protected:
    void Form_Load() override;
    void Form_Unload(controls::UnloadReason reason) override;
    void Form_Resize() override;

private:
    void Command1_Click();
    void Command2_Click();
    void Command3_Click();
    void Command4_Click();
    void List1_DblClick();
    void List1_MouseMove(const QPoint &point);
    void ConnectHandlers();
    /// Rows can be scrolled sideways up to twice the list's width.
    void SetExtent();
    /// Selects the row of a name, case ignored; whether there is one.
    bool SelectRow(const QString &name);
    /// Shows the site of the selected row.
    void GoToSelected();

    std::unique_ptr<Ui::frmFavorite> m_ui;
    QString m_filePath;
    /// One for each row of the list.
    QStringList m_addresses;
};
