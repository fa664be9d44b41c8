#include "platform/Dialogs.h"
#include "platform/FormRegistry.h"
#include "support/Text.h"

#include <QWidget>
#include <gtest/gtest.h>
#include <memory>

using platform::Answer;
using platform::FormRegistry;

namespace {

std::unique_ptr<QWidget> form(const char* name) {
    auto widget = std::make_unique<QWidget>();
    widget->setObjectName(u8(name));
    FormRegistry::add(widget.get());
    return widget;
}

} // namespace

TEST(Dialogs, NobodyThereMeansNothingIsChanged) {
    platform::Dialogs* const before = platform::installDialogs(nullptr);
    platform::Dialogs& safe = platform::dialogs();
    EXPECT_EQ(safe.message(u8("Eliminare?"), platform::MB_QUESTION, QString()), Answer::No);
    EXPECT_EQ(safe.message(u8("Eliminare?"), platform::MB_QUESTION_DEFAULT_NO, QString()), Answer::No);
    EXPECT_EQ(safe.message(u8("Proseguire?"), platform::MB_WARNING + 1, QString()), Answer::Cancel);
    EXPECT_EQ(safe.message(u8("Fatto"), platform::MB_INFORMATION, QString()), Answer::Ok);
    platform::TaskRequest request;
    request.checked = true;
    request.buttons = {u8("Elimina")};
    EXPECT_EQ(safe.task(request).button, QString());
    EXPECT_TRUE(safe.task(request).checked);
    EXPECT_EQ(safe.popup({{u8("Nuovo"), true}}), -1);
    EXPECT_EQ(safe.openFile({}, {}, {}), QString());
    EXPECT_EQ(platform::installDialogs(before), nullptr);
}

TEST(Dialogs, MarkupGoesAndTextStays) {
    EXPECT_EQ(platform::withoutMarkup(u8(
                  "<TextBlock TextWrapping='Wrap'>Piano <Bold>2026-0001</Bold><LineBreak/>Rossi &amp; C.</TextBlock>")),
              u8("Piano 2026-0001\nRossi & C."));
    EXPECT_EQ(platform::withoutMarkup(u8("importo < 10 e > 5")), u8("importo < 10 e > 5"));
    EXPECT_EQ(platform::withoutMarkup(u8("&amp;lt;")), u8("&lt;"));
}

TEST(FormRegistry, KnowsTheFormsThatAreLoaded) {
    auto first = form("frmProva");
    auto second = form("frmProva");
    auto other = form("frmAltra");
    FormRegistry::add(first.get()); // Loaded again: now the last of its name.
    EXPECT_EQ(FormRegistry::find(u8("frmProva")), first.get());
    first.reset();
    EXPECT_EQ(FormRegistry::find(u8("frmProva")), second.get());
    EXPECT_EQ(FormRegistry::all(), (QList<QObject*>{second.get(), other.get()}));
    second.reset();
    EXPECT_EQ(FormRegistry::find(u8("frmProva")), nullptr);
    other.reset();
    EXPECT_TRUE(FormRegistry::all().isEmpty());
}
