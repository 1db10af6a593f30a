#pragma once
// The resource manager maps a dialog template number to its form, and menu and icon numbers
// to their data. The application registers its own when the toolkit starts.
#include <cstddef>
#include <memory>

#include "ui/QtForm.h"

class IQtResourceMgr {
  public:
    virtual ~IQtResourceMgr() = default;
    // A new form for a dialog template, or null for an unknown number.
    virtual std::unique_ptr<IQtForm> CreateForm(int templateId) = 0;
    // Data and length of a menu or icon resource; false for a number outside the table.
    virtual bool FindResource(int number, const void** data, std::size_t* length) = 0;
};

// The manager that forms are made by; null until one is registered. Not owned.
void RegisterResourceMgr(IQtResourceMgr* manager);
IQtResourceMgr* RegisteredResourceMgr();
