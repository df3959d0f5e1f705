#pragma once
// Results: one finished exam, its scoring summary and every item with the right answer, the
// candidate's, and the question with its explanation.

#include "core/rich_text_documents.h"
#include "core/screen_context.h"
#include "exam/results_summary.h"

#include <QWidget>

#include <array>
#include <string>

class QLabel;
class QListWidget;
class QPushButton;

namespace tessera {

class RichTextView;

class Results final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(Results)

public:
    // Form_Load: counts afresh from the session and shows item 1.
    explicit Results(ScreenContext& context);

protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void buildControls();
    void fillList();
    void ShowResultItem(int position);
    void showPicture(int position);
    void Command1_Click(int index);

    ScreenContext& m_context;
    RtfVersions m_item; // ItemRtf and ItemRtfScaled
    std::array<std::string, 6> m_summary;
    std::array<QLabel*, 6> Label1{};
    QListWidget* List1 = nullptr;
    RichTextView* RichTextBox1 = nullptr;
    std::array<QPushButton*, 7> Command1{};
};

} // namespace tessera
