// The destructors of the ports that have no other code. They are out of line, so that each type's
// identity exists once in the process, in this library.
#include "platform/ports/Bundle.h"
#include "platform/ports/Controls.h"
#include "platform/ports/Drawing.h"
#include "platform/ports/Interface.h"
#include "platform/ports/NotificationCenter.h"
#include "platform/ports/PopUpButton.h"
#include "platform/ports/PrintDialogPanel.h"
#include "platform/ports/PrintDialogPlugIn.h"
#include "platform/ports/System.h"
#include "platform/ports/TextEncodings.h"
#include "platform/ports/TextField.h"
#include "platform/ports/Toolkit.h"

namespace cutline {

Bundle::~Bundle() = default;
Button::~Button() = default;
CheckBox::~CheckBox() = default;
Control::~Control() = default;
CustomViewClient::~CustomViewClient() = default;
CustomView::~CustomView() = default;
DrawingContext::~DrawingContext() = default;
Image::~Image() = default;
InterfaceClasses::~InterfaceClasses() = default;
InterfaceOwner::~InterfaceOwner() = default;
Label::~Label() = default;
NotificationCenter::~NotificationCenter() = default;
PDEPluginCallback13_v400_::~PDEPluginCallback13_v400_() = default;
PopUpButton::~PopUpButton() = default;
PrintDialogPanel::~PrintDialogPanel() = default;
PrintDialogPlugIn::~PrintDialogPlugIn() = default;
Stepper::~Stepper() = default;
SystemLog::~SystemLog() = default;
SystemVersion::~SystemVersion() = default;
TextColored::~TextColored() = default;
TextEncodings::~TextEncodings() = default;
TextFieldClient::~TextFieldClient() = default;
ActionObserver::~ActionObserver() = default;
Toolkit::~Toolkit() = default;

}  // namespace cutline
