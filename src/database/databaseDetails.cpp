// The page of the current material beside the tree.
#include "database/Kiv_mat_databaseWindow.h"

#include "database/detailsPane.h"
#include "tree/myTreeView.h"
#include "window/storeListener.h"

#include <QSignalBlocker>
#include <QSplitter>

using materialRows = databaseTree::rows;

void Kiv_mat_databaseWindow::buildDetails(QWidget *page)
{
    m_details = new detailsPane(known());
    setCentralWidget(m_details->beside(page));
    {
        const QSignalBlocker quiet(action("details"));
        action("details")->setChecked(detailsPane::wasOpen());
    }
    m_details->current = [this] {
        const QModelIndex at = m_view->currentIndex();
        const materialStruct *material = m_rows->materialAt(at);
        const d_groupStruct *group =
            material ? m_rows->homeOf(material) : materialRows::groupOf(m_model->itemFromIndex(at));
        materialPage::subject of{
            material,   group, &m_rows->database(), &known().firm(), &known().reservations().now(),
            isShared(), {}};
        if (material && isShared())
            of.editor = storeListener::instance().editorOf(storeDocument(), material->d_ktm);
        return of;
    };
    m_details->openOrder = [this] { return openOrder ? &openOrder() : nullptr; };
    connect(m_details, &detailsPane::useWanted, this, &Kiv_mat_databaseWindow::useWanted);
    connect(m_details, &detailsPane::historyWanted, this, [this] { commandHistory(false); });
    connect(&storeListener::instance(), &storeListener::edited, m_details, &detailsPane::follow);
    connect(m_details, &detailsPane::left, m_view, [this] { m_view->setFocus(); });
}

void Kiv_mat_databaseWindow::commandDetails(bool on)
{
    // The keys are not to be lost with it.
    if (!on && m_details->hasFocus())
        m_view->setFocus();
    m_details->setOpen(on);
}

void Kiv_mat_databaseWindow::commandGoToDetails(bool)
{
    action("details")->setChecked(true);
    m_details->setFocus();
}
