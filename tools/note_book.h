#pragma once
// NoteBook: the candidate's own rich text notebook over TesseraNoteBook.RTF, with a find that
// wraps round once; unsaved changes are tracked in NoteBookChanged.

#include "core/screen_context.h"

#include <QWidget>

#include <array>

class QCheckBox;
class QGroupBox;
class QLineEdit;
class QPushButton;

namespace tessera {

struct ScreenContext;
class RichTextView;

class NoteBook final : public QWidget, public SavesNoteBook {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(NoteBook)

public:
    // Loading reads the notebook file and puts the cursor where it stood when last closed.
    explicit NoteBook(ScreenContext& context);

    // Writes the notebook to its file; the end of the program calls it too.
    bool SaveNoteBook() override;

    RichTextView* RichTextBox1 = nullptr;
    QGroupBox* Frame1 = nullptr;
    QLineEdit* Text1 = nullptr; // Text1(1)
    QCheckBox* Check1 = nullptr;
    std::array<QPushButton*, 4> Command1{};
    std::array<QPushButton*, 2> Command2{};

protected:
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildControls();
    QGroupBox* buildFindPanel();
    void Command1_Click(int index);
    void closeFindPanel();
    void FindNext();

    ScreenContext& m_context;
    int LastFound = 0;
};

} // namespace tessera
