#pragma once
// Viewing: one of the seven discussion texts, or the glossary with its letter buttons and its
// search over terms and definitions; ViewerSection decides which as the form loads.

#include "core/rich_text_documents.h"
#include "tools/glossary_index.h"

#include <QWidget>

#include <array>

class QCheckBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QRadioButton;

namespace tessera {

struct ScreenContext;
class RichTextView;
class TextFrame;

class Viewing final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(Viewing)

public:
    static constexpr int GlossarySection = 8;

    explicit Viewing(ScreenContext& context);

    RichTextView* RichTextBox1 = nullptr;
    RichTextView* RichTextBox2 = nullptr;
    TextFrame* Shape1 = nullptr;
    QLabel* Label1 = nullptr;
    QListWidget* List1 = nullptr;
    QGroupBox* Frame1 = nullptr;
    QGroupBox* Frame2 = nullptr;
    QLineEdit* Text2 = nullptr;
    QCheckBox* Check1 = nullptr;
    std::array<QRadioButton*, 3> Option1{};
    std::array<QPushButton*, LetterCount> Command3{};
    std::array<QPushButton*, 7> Command1{};

protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    static constexpr int GlossaryHeight = 552; // the glossary's opening height

    void buildControls();
    void buildFindPanel();
    void buildLetterButtons();
    void loadDiscussion();
    void loadGlossary();
    void showDocuments(bool keepPlace); // keepPlace: the same text in another size
    void fitGlossaryBoxes();
    void showEntry(int position);

    void Command1_Click(int index);
    void Command3_Click(int index);
    void openFindPanel();
    void closeFindPanel();
    void FindNext();

    ScreenContext& m_context;
    bool m_glossary = false;
    QStringList Terms;
    QStringList Definitions;
    LetterStarts LetterStart{};
    int LastLetter = 0;
    int LastFound = 0;
    RtfVersions m_text;
    RtfVersions m_term;
};

} // namespace tessera
