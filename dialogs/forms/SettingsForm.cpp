#include "dialogs/forms/SettingsForm.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "dialogs/forms/ControlIds.h"
#include "dialogs/forms/FormBuilder.h"

// The options page's controls in their order of creation; the labels are IDC_STATIC_0 to 21.
struct CqtDialogRes_IDD_SETTINGS::Widgets {
    QGroupBox* IDC_STATIC_0_ = nullptr;
    QGroupBox* IDC_STATIC_1_ = nullptr;
    QCheckBox* IDC_SHAPE_ = nullptr;
    QCheckBox* IDC_LAYER_ = nullptr;
    QCheckBox* IDC_TRACE_ = nullptr;
    QCheckBox* IDC_VIA_ = nullptr;
    QCheckBox* IDC_NO_EMBEDPLANE_ = nullptr;
    QCheckBox* IDC_ADD_PLANE_ = nullptr;
    QCheckBox* IDC_ELIMINATE_ = nullptr;
    QCheckBox* IDC_BOUNDARY_LIMIT_ = nullptr;
    QCheckBox* IDC_OUTPUT_PATCH_ = nullptr;
    QCheckBox* IDC_SHAPE_COLOR_ = nullptr;
    QCheckBox* IDC_CHECK_COMPONENT_ = nullptr;
    QCheckBox* IDC_TRANSLATE_ACTIVE_COMPONENTS_ = nullptr;
    QCheckBox* IDC_CHECK_TRANSLATE_PAD_ = nullptr;
    QCheckBox* IDC_EXCLUDE_VOID_SHAPE_ENCLOSE_A_VIA_ = nullptr;
    QLineEdit* IDC_VIA_HOLE_ = nullptr;
    QLabel* IDC_STATIC_2_ = nullptr;
    QLabel* IDC_STATIC_3_ = nullptr;
    QLineEdit* IDC_EDIT_HKP_FILE_PATH_ = nullptr;
    QPushButton* IDC_BUTTON_HKP_FILE_BROWSE_ = nullptr;
    QLabel* IDC_STATIC_4_ = nullptr;
    QLineEdit* IDC_EDIT_TRACE_FILE_PATH_ = nullptr;
    QPushButton* IDC_BUTTON_TRACE_FILE_BROWSE_ = nullptr;
    QLabel* IDC_STATIC_5_ = nullptr;
    QLineEdit* IDC_AFFIX_ = nullptr;
    QCheckBox* IDC_APPEND_NET_NAME_ = nullptr;
    QLabel* IDC_STATIC_6_ = nullptr;
    QLabel* IDC_STATIC_7_ = nullptr;
    QLabel* IDC_STATIC_8_ = nullptr;
    QLabel* IDC_STATIC_9_ = nullptr;
    QLineEdit* IDC_MIN_X_ = nullptr;
    QLineEdit* IDC_MIN_Y_ = nullptr;
    QLineEdit* IDC_MAX_X_ = nullptr;
    QLineEdit* IDC_MAX_Y_ = nullptr;
    QLabel* IDC_STATIC_10_ = nullptr;
    QLabel* IDC_STATIC_11_ = nullptr;
    QLabel* IDC_STATIC_12_ = nullptr;
    QLabel* IDC_STATIC_13_ = nullptr;
    QLabel* IDC_STATIC_14_ = nullptr;
    QLineEdit* IDC_EDIT_PROPERTY_VALUE_ = nullptr;
    QLabel* IDC_TRACE_VOID_ = nullptr;
    QLineEdit* IDC_EDIT_TRACE_VOID_CLEARANCE_ = nullptr;
    QLabel* IDC_STATIC_15_ = nullptr;
    QLabel* IDC_STATIC_16_ = nullptr;
    QLineEdit* IDC_ARC_LENGTH_ = nullptr;
    QLabel* IDC_STATIC_17_ = nullptr;
    QLabel* IDC_STATIC_18_ = nullptr;
    QLineEdit* IDC_FACTOR_TRACE_ = nullptr;
    QLabel* IDC_STATIC_19_ = nullptr;
    QLabel* IDC_STATIC_20_ = nullptr;
    QLineEdit* IDC_FACTOR_ = nullptr;
    QLabel* IDC_STATIC_21_ = nullptr;
};

CqtDialogRes_IDD_SETTINGS::CqtDialogRes_IDD_SETTINGS() = default;
CqtDialogRes_IDD_SETTINGS::~CqtDialogRes_IDD_SETTINGS() = default;

namespace {

// Rows of the page: the check boxes of the elements box in two columns, the area box, then
// one row per number (label, field, unit), the two text fields and the two companion files.
constexpr int kColumn1 = 25, kColumn2 = 350, kCheckWidth = 315, kRow = 24;
constexpr int kLabelX = 10, kLabelWidth = 425, kFieldX = 440, kFieldWidth = 100;
constexpr int kUnitX = 546, kWideFieldWidth = 230;

}  // namespace

void CqtDialogRes_IDD_SETTINGS::setupUi(QWidget* dialog, bool skipScale) {
    const char* form = formName();
    BeginForm(dialog, form, 680, 700);
    m_ui = std::make_unique<Widgets>();
    Widgets& w = *m_ui;
    auto check = [dialog](const char* symbol, int x, int y, int width = kCheckWidth) {
        return NewControl<QCheckBox>(dialog, symbol, x, y, width, kRow);
    };
    auto label = [dialog](const char* symbol, int x, int y, int width) {
        return NewControl<QLabel>(dialog, symbol, x, y, width, kRow);
    };
    auto edit = [dialog](const char* symbol, int x, int y, int width = kFieldWidth) {
        return NewControl<QLineEdit>(dialog, symbol, x, y, width, kRow);
    };
    w.IDC_STATIC_0_ = NewFrame<QGroupBox>(dialog, "IDC_STATIC_0", 10, 8, 660, 166);
    w.IDC_STATIC_1_ = NewFrame<QGroupBox>(dialog, "IDC_STATIC_1", 10, 180, 660, 118);
    w.IDC_SHAPE_ = check("IDC_SHAPE", kColumn1, 30, 110);
    w.IDC_LAYER_ = check("IDC_LAYER", 140, 30, 110);
    w.IDC_TRACE_ = check("IDC_TRACE", 255, 30, 110);
    w.IDC_VIA_ = check("IDC_VIA", 370, 30, 110);
    w.IDC_NO_EMBEDPLANE_ = check("IDC_NO_EMBEDPLANE", kColumn1, 58);
    w.IDC_ADD_PLANE_ = check("IDC_ADD_PLANE", kColumn2, 58);
    w.IDC_ELIMINATE_ = check("IDC_ELIMINATE", kColumn1, 84);
    w.IDC_BOUNDARY_LIMIT_ = check("IDC_BOUNDARY_LIMIT", kColumn1, 202, 400);
    w.IDC_OUTPUT_PATCH_ = check("IDC_OUTPUT_PATCH", kColumn2, 84);
    w.IDC_SHAPE_COLOR_ = check("IDC_SHAPE_COLOR", kColumn1, 110);
    w.IDC_CHECK_COMPONENT_ = check("IDC_CHECK_COMPONENT", kColumn1, 136);
    w.IDC_TRANSLATE_ACTIVE_COMPONENTS_ = check("IDC_TRANSLATE_ACTIVE_COMPONENTS", kColumn2, 136);
    w.IDC_CHECK_TRANSLATE_PAD_ = check("IDC_CHECK_TRANSLATE_PAD", 485, 30, 170);
    w.IDC_EXCLUDE_VOID_SHAPE_ENCLOSE_A_VIA_ =
        check("IDC_EXCLUDE_VOID_SHAPE_ENCLOSE_A_VIA", kLabelX, 308, kLabelWidth);
    w.IDC_VIA_HOLE_ = edit("IDC_VIA_HOLE", kFieldX, 308);
    w.IDC_STATIC_2_ = label("IDC_STATIC_2", kUnitX, 308, 60);
    w.IDC_STATIC_3_ = label("IDC_STATIC_3", kLabelX, 522, 300);
    w.IDC_EDIT_HKP_FILE_PATH_ = edit("IDC_EDIT_HKP_FILE_PATH", kLabelX, 546, 560);
    w.IDC_BUTTON_HKP_FILE_BROWSE_ =
        NewControl<QPushButton>(dialog, "IDC_BUTTON_HKP_FILE_BROWSE", 580, 545, 90, 26);
    w.IDC_STATIC_4_ = label("IDC_STATIC_4", kLabelX, 580, 300);
    w.IDC_EDIT_TRACE_FILE_PATH_ = edit("IDC_EDIT_TRACE_FILE_PATH", kLabelX, 604, 560);
    w.IDC_BUTTON_TRACE_FILE_BROWSE_ =
        NewControl<QPushButton>(dialog, "IDC_BUTTON_TRACE_FILE_BROWSE", 580, 603, 90, 26);
    w.IDC_STATIC_5_ = label("IDC_STATIC_5", kLabelX, 488, kLabelWidth);
    w.IDC_AFFIX_ = edit("IDC_AFFIX", kFieldX, 488, kWideFieldWidth);
    w.IDC_APPEND_NET_NAME_ = check("IDC_APPEND_NET_NAME", kColumn2, 110);
    w.IDC_STATIC_6_ = label("IDC_STATIC_6", 335, 232, 60);
    w.IDC_STATIC_7_ = label("IDC_STATIC_7", kColumn1, 264, 60);
    w.IDC_STATIC_8_ = label("IDC_STATIC_8", 335, 264, 60);
    w.IDC_STATIC_9_ = label("IDC_STATIC_9", kColumn1, 232, 60);
    w.IDC_MIN_X_ = edit("IDC_MIN_X", 90, 232, 120);
    w.IDC_MIN_Y_ = edit("IDC_MIN_Y", 400, 232, 120);
    w.IDC_MAX_X_ = edit("IDC_MAX_X", 90, 264, 120);
    w.IDC_MAX_Y_ = edit("IDC_MAX_Y", 400, 264, 120);
    w.IDC_STATIC_10_ = label("IDC_STATIC_10", 216, 232, 40);
    w.IDC_STATIC_11_ = label("IDC_STATIC_11", 526, 232, 40);
    w.IDC_STATIC_12_ = label("IDC_STATIC_12", 216, 264, 40);
    w.IDC_STATIC_13_ = label("IDC_STATIC_13", 526, 264, 40);
    w.IDC_STATIC_14_ = label("IDC_STATIC_14", kLabelX, 458, kLabelWidth);
    w.IDC_EDIT_PROPERTY_VALUE_ = edit("IDC_EDIT_PROPERTY_VALUE", kFieldX, 458, kWideFieldWidth);
    w.IDC_TRACE_VOID_ = label("IDC_TRACE_VOID", kLabelX, 428, kLabelWidth);
    w.IDC_EDIT_TRACE_VOID_CLEARANCE_ = edit("IDC_EDIT_TRACE_VOID_CLEARANCE", kFieldX, 428);
    w.IDC_STATIC_15_ = label("IDC_STATIC_15", kUnitX, 428, 124);
    w.IDC_STATIC_16_ = label("IDC_STATIC_16", kLabelX, 398, kLabelWidth);
    w.IDC_ARC_LENGTH_ = edit("IDC_ARC_LENGTH", kFieldX, 398);
    w.IDC_STATIC_17_ = label("IDC_STATIC_17", kUnitX, 398, 60);
    w.IDC_STATIC_18_ = label("IDC_STATIC_18", kLabelX, 368, kLabelWidth);
    w.IDC_FACTOR_TRACE_ = edit("IDC_FACTOR_TRACE", kFieldX, 368);
    w.IDC_STATIC_19_ = label("IDC_STATIC_19", kUnitX, 368, 60);
    w.IDC_STATIC_20_ = label("IDC_STATIC_20", kLabelX, 338, kLabelWidth);
    w.IDC_FACTOR_ = edit("IDC_FACTOR", kFieldX, 338);
    w.IDC_STATIC_21_ = label("IDC_STATIC_21", kUnitX, 338, 60);
    retranslateUi(dialog);
    EndForm(dialog, skipScale);
}

void CqtDialogRes_IDD_SETTINGS::retranslateUi(QWidget* dialog) {
    const char* form = formName();
    Widgets& w = *m_ui;
    dialog->setWindowTitle(FormText(form, "Translation Options"));
    w.IDC_STATIC_0_->setTitle(FormText(form, "Elements to be Translated"));
    w.IDC_STATIC_1_->setTitle(FormText(form, "Area to be Translated"));
    w.IDC_SHAPE_->setText(FormText(form, "Shape"));
    w.IDC_LAYER_->setText(FormText(form, "Layer"));
    w.IDC_TRACE_->setText(FormText(form, "Trace"));
    w.IDC_VIA_->setText(FormText(form, "Via"));
    w.IDC_NO_EMBEDPLANE_->setText(FormText(form, "Allow signal traces on Power Plane"));
    w.IDC_ADD_PLANE_->setText(FormText(form, "Add pseudo plane(s) if lack of plane or patch"));
    w.IDC_ELIMINATE_->setText(FormText(form, "Exclude elements with no net names"));
    w.IDC_BOUNDARY_LIMIT_->setText(FormText(form, "Translate elements in a specified area only "));
    w.IDC_OUTPUT_PATCH_->setText(FormText(form, "Allow patches on Signal layers"));
    w.IDC_SHAPE_COLOR_->setText(FormText(form, "Distinguish shapes of different nets by color"));
    w.IDC_CHECK_COMPONENT_->setText(FormText(form, "Translate passive component linkages"));
    w.IDC_TRANSLATE_ACTIVE_COMPONENTS_->setText(FormText(form, "Translate component linkages"));
    w.IDC_CHECK_TRANSLATE_PAD_->setText(FormText(form, "Translate Pads"));
    w.IDC_EXCLUDE_VOID_SHAPE_ENCLOSE_A_VIA_->setText(
        FormText(form, "Exclude void shapes enclosing vias with area less than:"));
    w.IDC_STATIC_2_->setText(FormText(form, "mm\xc2\xb2"));
    w.IDC_STATIC_3_->setText(FormText(form, "Expedition layout.hkp File"));
    w.IDC_BUTTON_HKP_FILE_BROWSE_->setText(FormText(form, "Browse"));
    w.IDC_STATIC_4_->setText(FormText(form, "Board Station Trace File Path"));
    w.IDC_BUTTON_TRACE_FILE_BROWSE_->setText(FormText(form, "Browse"));
    w.IDC_STATIC_5_->setText(FormText(form, "Name affix : "));
    w.IDC_APPEND_NET_NAME_->setText(FormText(form, "Append net name to objects"));
    w.IDC_STATIC_6_->setText(FormText(form, "Min Y :"));
    w.IDC_STATIC_7_->setText(FormText(form, "Max X :"));
    w.IDC_STATIC_8_->setText(FormText(form, "Max Y :"));
    w.IDC_STATIC_9_->setText(FormText(form, "Min X :"));
    for (QLabel* unit : {w.IDC_STATIC_10_, w.IDC_STATIC_11_, w.IDC_STATIC_12_, w.IDC_STATIC_13_})
        unit->setText(FormText(form, "mm"));
    w.IDC_STATIC_14_->setText(FormText(form, "Name of the Data Field for Component Values :"));
    w.IDC_TRACE_VOID_->setText(FormText(form, "Generate Gap around Traces with Gap Size set to "));
    w.IDC_STATIC_15_->setText(FormText(form, "% of Trace Width"));
    w.IDC_STATIC_16_->setText(FormText(form, "Maximum arc length replaced by line segment:"));
    w.IDC_STATIC_17_->setText(FormText(form, "mm"));
    w.IDC_STATIC_18_->setText(FormText(form, "Unionize traces shorter than:"));
    w.IDC_STATIC_19_->setText(FormText(form, "mm"));
    w.IDC_STATIC_20_->setText(FormText(form, "Exclude void shapes with area less than:"));
    w.IDC_STATIC_21_->setText(FormText(form, "mm\xc2\xb2"));
}

QWidget* CqtDialogRes_IDD_SETTINGS::plainControl(int id) const {
    if (!m_ui) return nullptr;
    const Widgets& w = *m_ui;
    switch (id) {
        case IDC_SHAPE:
            return w.IDC_SHAPE_;
        case IDC_LAYER:
            return w.IDC_LAYER_;
        case IDC_TRACE:
            return w.IDC_TRACE_;
        case IDC_VIA:
            return w.IDC_VIA_;
        case IDC_NO_EMBEDPLANE:
            return w.IDC_NO_EMBEDPLANE_;
        case IDC_ADD_PLANE:
            return w.IDC_ADD_PLANE_;
        case IDC_ELIMINATE:
            return w.IDC_ELIMINATE_;
        case IDC_BOUNDARY_LIMIT:
            return w.IDC_BOUNDARY_LIMIT_;
        case IDC_OUTPUT_PATCH:
            return w.IDC_OUTPUT_PATCH_;
        case IDC_SHAPE_COLOR:
            return w.IDC_SHAPE_COLOR_;
        case IDC_CHECK_COMPONENT:
            return w.IDC_CHECK_COMPONENT_;
        case IDC_TRANSLATE_ACTIVE_COMPONENTS:
            return w.IDC_TRANSLATE_ACTIVE_COMPONENTS_;
        case IDC_CHECK_TRANSLATE_PAD:
            return w.IDC_CHECK_TRANSLATE_PAD_;
        case IDC_EXCLUDE_VOID_SHAPE_ENCLOSE_A_VIA:
            return w.IDC_EXCLUDE_VOID_SHAPE_ENCLOSE_A_VIA_;
        case IDC_VIA_HOLE:
            return w.IDC_VIA_HOLE_;
        case IDC_EDIT_HKP_FILE_PATH:
            return w.IDC_EDIT_HKP_FILE_PATH_;
        case IDC_BUTTON_HKP_FILE_BROWSE:
            return w.IDC_BUTTON_HKP_FILE_BROWSE_;
        case IDC_EDIT_TRACE_FILE_PATH:
            return w.IDC_EDIT_TRACE_FILE_PATH_;
        case IDC_BUTTON_TRACE_FILE_BROWSE:
            return w.IDC_BUTTON_TRACE_FILE_BROWSE_;
        case IDC_AFFIX:
            return w.IDC_AFFIX_;
        case IDC_APPEND_NET_NAME:
            return w.IDC_APPEND_NET_NAME_;
        case IDC_MIN_X:
            return w.IDC_MIN_X_;
        case IDC_MIN_Y:
            return w.IDC_MIN_Y_;
        case IDC_MAX_X:
            return w.IDC_MAX_X_;
        case IDC_MAX_Y:
            return w.IDC_MAX_Y_;
        case IDC_EDIT_PROPERTY_VALUE:
            return w.IDC_EDIT_PROPERTY_VALUE_;
        case IDC_TRACE_VOID:
            return w.IDC_TRACE_VOID_;
        case IDC_EDIT_TRACE_VOID_CLEARANCE:
            return w.IDC_EDIT_TRACE_VOID_CLEARANCE_;
        case IDC_ARC_LENGTH:
            return w.IDC_ARC_LENGTH_;
        case IDC_FACTOR_TRACE:
            return w.IDC_FACTOR_TRACE_;
        case IDC_FACTOR:
            return w.IDC_FACTOR_;
        default:
            return nullptr;
    }
}
