#include "dialogs/forms/Ndd2QfxResourceMgr.h"

#include <QByteArray>

#include "dialogs/forms/AfxForm.h"
#include "dialogs/forms/ColorPickerForm.h"
#include "dialogs/forms/ControlIds.h"
#include "dialogs/forms/GridForm.h"
#include "dialogs/forms/GroupSelectorForm.h"
#include "dialogs/forms/IbisFileSelectionForm.h"
#include "dialogs/forms/LinkPinNamesForm.h"
#include "dialogs/forms/LinkVoltageForm.h"
#include "dialogs/forms/MainForm.h"
#include "dialogs/forms/MyDialogForm.h"
#include "dialogs/forms/NetChoiceForm.h"
#include "dialogs/forms/PinGroupingForm.h"
#include "dialogs/forms/PinSelectorForm.h"
#include "dialogs/forms/ResourcePictures.h"
#include "dialogs/forms/SettingsForm.h"

namespace {

template <class Form>
std::unique_ptr<CQtDialogForm> Make() {
    return std::make_unique<Form>();
}

struct FormEntry {
    int dialogId;
    std::unique_ptr<CQtDialogForm> (*make)();
};

const FormEntry kForms[] = {
    {IDD_Ndd2Qfx_DIALOG, Make<CqtDialogRes_IDD_Ndd2Qfx_DIALOG>},
    {IDD_AFX_DIALOG, Make<CqtDialogRes_IDD_AFX_DIALOG>},
    {IDD_DIALOG_MY_DIALOG, Make<CqtDialogRes_IDD_DIALOG_MY_DIALOG>},
    {IDD_SETTINGS, Make<CqtDialogRes_IDD_SETTINGS>},
    {IDD_NET_CHOICE, Make<CqtDialogRes_IDD_NET_CHOICE>},
    {IDD_COLOR_PICKER, Make<CqtDialogRes_IDD_COLOR_PICKER>},
    {IDD_IBIS_FILE_SELECTION, Make<CqtDialogRes_IDD_IBIS_FILE_SELECTION>},
    {IDD_DIALOG_PIN_GROUPING, Make<CqtDialogRes_IDD_DIALOG_PIN_GROUPING>},
    {IDD_DIALOG_GROUP_SELECTOR, Make<CqtDialogRes_IDD_DIALOG_GROUP_SELECTOR>},
    {IDD_DIALOG_PIN_SELECTOR, Make<CqtDialogRes_IDD_DIALOG_PIN_SELECTOR>},
    {IDD_LINK_PIN_NAMES_TO_CKT_NODES, Make<CqtDialogRes_IDD_LINK_PIN_NAMES_TO_CKT_NODES>},
    {IDD_LINK_VOLTAGE_TO_PINS_DIALOG, Make<CqtDialogRes_IDD_LINK_VOLTAGE_TO_PINS_DIALOG>},
    {IDD_GRID, Make<CqtDialogRes_IDD_GRID>},
};

// The pictures are drawn at their first use and kept for the process; both net lists show
// the same swatches.
const QByteArray& Picture(int number) {
    static const QByteArray about = AboutPicturePng();
    static const QByteArray icon = ProgramIconPng();
    static const QByteArray colors = NetColorStripPng();
    switch (number) {
        case IDB_ABOUT:
            return about;
        case IDR_MAINFRAME:
            return icon;
        default:
            return colors;
    }
}

struct PictureTable {
    QtResourceEntry entries[4];
    PictureTable() {
        const int numbers[4] = {IDB_ABOUT, IDR_MAINFRAME, IDB_NET_COLORS, IDB_NET_COLORS_CHOSEN};
        for (int i = 0; i < 4; ++i) {
            const QByteArray& bytes = Picture(numbers[i]);
            entries[i] = {numbers[i], bytes.constData(), static_cast<std::size_t>(bytes.size())};
        }
    }
};

}  // namespace

std::unique_ptr<IQtForm> CQtNdd2QfxResourceMgr::CreateForm(int templateId) {
    return CreateDialogForm(templateId);
}

bool CQtNdd2QfxResourceMgr::FindResource(int number, const void** data, std::size_t* length) {
    const QtResourceEntry* entry = FindEntry(number);
    if (!entry) return false;
    if (data) *data = entry->data;
    if (length) *length = entry->length;
    return true;
}

std::unique_ptr<CQtDialogForm> CQtNdd2QfxResourceMgr::CreateDialogForm(int templateId) const {
    for (const FormEntry& entry : kForms)
        if (entry.dialogId == templateId) return entry.make();
    return nullptr;
}

const QtResourceEntry* CQtNdd2QfxResourceMgr::FindEntry(int number) const {
    static const PictureTable table;
    for (const QtResourceEntry& entry : table.entries)
        if (entry.number == number) return &entry;
    return nullptr;
}

QPixmap CQtNdd2QfxResourceMgr::LoadPixmap(int number) const {
    QPixmap pixmap;
    if (const QtResourceEntry* entry = FindEntry(number))
        pixmap.loadFromData(reinterpret_cast<const uchar*>(entry->data),
                            static_cast<uint>(entry->length), "PNG");
    return pixmap;
}

QList<QIcon> CQtNdd2QfxResourceMgr::LoadImageList(int number, int width) const {
    QList<QIcon> images;
    const QPixmap strip = LoadPixmap(number);
    for (int x = 0; width > 0 && x + width <= strip.width(); x += width)
        images.append(QIcon(strip.copy(x, 0, width, strip.height())));
    return images;
}
