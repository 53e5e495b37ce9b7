#include "utils/dialogs/generic_input_dialog_widgets.h"

#include <QMetaObject>
#include <QSizePolicy>
#include <algorithm>

namespace {

template <typename Object, typename... Parent>
Object* Make(const QString& name, Parent*... parent) {
  auto* object = new Object(parent...);
  object->setObjectName(name);
  return object;
}

/// A label of fixed width whose height is that of its text at this width. Layouts ask for the height at the width of
/// their cell, where the text may need fewer lines.
class TextLabel final : public QLabel {
 public:
  using QLabel::QLabel;
  int heightForWidth(int width) const override { return QLabel::heightForWidth(std::min(width, maximumWidth())); }
};

}  // namespace

void GenericInputDialogWidgets::SetUp(QDialog& dialog) {
  dialog.setObjectName(QStringLiteral("generic_input_dialog_base"));
  dialogLayout = Make<QVBoxLayout>(QStringLiteral("verticalLayout_4"), &dialog);
  dialogLayout->setContentsMargins(0, 0, 0, 0);
  border = Make<QWidget>(QStringLiteral("border_widget"), &dialog);
  dialogLayout->addWidget(border);
  borderLayout = Make<QVBoxLayout>(QStringLiteral("verticalLayout_3"), border);
  borderLayout->setContentsMargins(1, 1, 1, 1);

  header = Make<QWidget>(QStringLiteral("generic_input_widget_header"), border);
  header->setSizePolicy(QSizePolicy::MinimumExpanding, QSizePolicy::Preferred);
  borderLayout->addWidget(header);
  SetUpHeader();

  instruction = Make<QWidget>(QStringLiteral("generic_input_widget_instruction"), border);
  instruction->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
  borderLayout->addWidget(instruction);
  SetUpInstruction();

  footer = Make<QWidget>(QStringLiteral("generic_input_widget_footer"), border);
  footer->setSizePolicy(QSizePolicy::MinimumExpanding, QSizePolicy::MinimumExpanding);
  borderLayout->addWidget(footer);
  buttonsLayout = Make<QHBoxLayout>(QStringLiteral("buttons_layout"), footer);

  QMetaObject::connectSlotsByName(&dialog);
}

void GenericInputDialogWidgets::SetUpHeader() {
  headerLayout = Make<QHBoxLayout>(QStringLiteral("horizontalLayout"), header);
  icon = Make<QLabel>(QStringLiteral("generic_input_information_icon"), header);
  icon->setFocusPolicy(Qt::NoFocus);
  title = Make<QLabel>(QStringLiteral("generic_input_header_label"), header);
  // A style may draw it larger than in the font that the dialog is made wide for.
  title->setWordWrap(true);
  closeButton = Make<QPushButton>(QStringLiteral("generic_input_header_close"), header);
  closeButton->setFlat(true);
  // Otherwise Enter would press it.
  closeButton->setAutoDefault(false);
  closeButton->setFocusPolicy(Qt::StrongFocus);
  closeButton->setCursor(Qt::PointingHandCursor);
  for (QWidget* widget :
       {static_cast<QWidget*>(icon), static_cast<QWidget*>(title), static_cast<QWidget*>(closeButton)})
    headerLayout->addWidget(widget);
}

void GenericInputDialogWidgets::SetUpInstruction() {
  instructionLayout = Make<QVBoxLayout>(QStringLiteral("verticalLayout"), instruction);
  text = Make<TextLabel>(QStringLiteral("generic_input_instruction_label"), instruction);
  text->setScaledContents(true);
  text->setAlignment(Qt::AlignJustify | Qt::AlignVCenter);
  text->setWordWrap(true);
  text->setOpenExternalLinks(true);
  text->setTextInteractionFlags(Qt::LinksAccessibleByMouse);
  instructionLayout->addWidget(text);
  fields = Make<QWidget>(QStringLiteral("generic_input_widget_fields"), instruction);
  instructionLayout->addWidget(fields);
  fieldsLayout = Make<QVBoxLayout>(QStringLiteral("verticalLayout_2"), fields);
  fieldsLayout->setSizeConstraint(QLayout::SetFixedSize);
}
