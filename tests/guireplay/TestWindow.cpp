#include "TestWindow.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

namespace {

template <typename W>
W* Named(W* widget, const char* name) {
    widget->setObjectName(QLatin1String(name));
    return widget;
}

}  // namespace

const CClassFunctionCall* CApplyTarget::GetChainHead() const {
    static const CHandlerChain chain(CCmdTargetBase::GetChainHead(),
                                     OnCommand(1, UI_FN(&CApplyTarget::OnApply)),
                                     OnCommand(2, UI_FN(&CApplyTarget::OnApplyNow)));
    return chain.Head();
}

TestWindow::TestWindow(bool renamedApply) {
    m_commands.apply = [this] { Apply(); };
    setObjectName("testWindow");
    setWindowTitle("Replay Test");
    auto layout = new QVBoxLayout(this);
    nameEdit = Named(new QLineEdit, "nameEdit");
    layout->addWidget(nameEdit);
    auto box = Named(new QGroupBox("Options"), "optionsBox");
    auto boxLayout = new QVBoxLayout(box);
    boxLayout->addWidget(Named(new QCheckBox("Keep vias"), "keepCheck"));
    auto combo = Named(new QComboBox, "unitCombo");
    combo->addItems({"mm", "mil"});
    boxLayout->addWidget(combo);
    layout->addWidget(box);
    nets = Named(new QListWidget, "netList");
    for (const char* net : {"GND", "VCC", "CLK"}) {
        auto item = new QListWidgetItem(net, nets);
        item->setCheckState(Qt::Unchecked);
    }
    nets->item(2)->setFlags(nets->item(2)->flags() & ~Qt::ItemIsEnabled);
    layout->addWidget(nets);
    auto tabs = Named(new QTabWidget, "pages");
    tabs->addTab(Named(new QLabel("first page"), "firstPage"), "General");
    tabs->addTab(Named(new QLabel("second page"), "secondPage"), "Colours");
    tabs->setTabEnabled(1, false);
    layout->addWidget(tabs);
    result = Named(new QLabel("nothing yet"), "resultLabel");
    layout->addWidget(result);
    auto apply = Named(new QPushButton("Apply"), renamedApply ? "applyNowButton" : "applyButton");
    m_applyId = renamedApply ? 2 : 1;
    connect(apply, &QPushButton::clicked, this,
            [this] { m_commands.OnCmdMsg(m_applyId, 0, nullptr, false); });
    layout->addWidget(apply);
    auto confirm = Named(new QPushButton("Confirm"), "confirmButton");
    connect(confirm, &QPushButton::clicked, this, &TestWindow::Confirm);
    layout->addWidget(confirm);
}

void TestWindow::Confirm() {
    if (QMessageBox::question(this, "Keep Result", "Keep it?") == QMessageBox::Yes)
        result->setText(result->text() + " (kept)");
}

void TestWindow::Apply() {
    QStringList ticked;
    for (int i = 0; i < nets->count(); ++i)
        if (nets->item(i)->checkState() == Qt::Checked) ticked << nets->item(i)->text();
    result->setText(nameEdit->text() + ": " + ticked.join(','));
}
