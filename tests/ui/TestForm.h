#pragma once
// A small form for the dialog-base tests: an edit, a number edit, a check box, a combo box, a
// label, OK and Cancel, under template kTestFormId.
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <map>

#include "ui/QtResourceMgr.h"

constexpr int kTestFormId = 100;
constexpr int kEditText = 1000, kEditNumber = 1001, kCheck = 1002, kCombo = 1003, kLabel = 1004;

class TestForm : public IQtForm {
  public:
    void setupUi(QWidget* w, bool) override {
        controls_ = {{kEditText, new QLineEdit(w)},    {kEditNumber, new QLineEdit(w)},
                     {kCheck, new QCheckBox(w)},       {kCombo, new QComboBox(w)},
                     {kLabel, new QLabel(w)},          {1, new QPushButton("OK", w)},
                     {2, new QPushButton("Cancel", w)}};
    }
    QWidget* GetControl(int id) override {
        auto found = controls_.find(id);
        return found == controls_.end() ? nullptr : found->second;
    }
    std::vector<int> GetControlIds() const override {
        std::vector<int> ids;
        for (const auto& c : controls_) ids.push_back(c.first);
        return ids;
    }

  private:
    std::map<int, QWidget*> controls_;
};

class TestResources : public IQtResourceMgr {
  public:
    TestResources() { RegisterResourceMgr(this); }
    ~TestResources() override { RegisterResourceMgr(nullptr); }
    std::unique_ptr<IQtForm> CreateForm(int id) override {
        return id == kTestFormId ? std::make_unique<TestForm>() : nullptr;
    }
    bool FindResource(int, const void**, std::size_t*) override { return false; }
};
