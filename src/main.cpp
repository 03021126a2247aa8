// Makes the real parts and wires them.
#include "app/frmIntro.h"
#include "app/start.h"
#include "basis/background_reader.h"
#include "basis/system_time.h"
#include "excel/builtin_excel.h"
#include "excel/excel_or_builtin.h"
#include "platform/application.h"
#include "platform/browser.h"
#include "platform/debug_log.h"
#include "platform/dialogs.h"
#include "platform/dutch_texts.h"
#include "platform/ending.h"
#include "platform/excel.h"
#include "platform/fonts.h"
#include "platform/mouse_wheel.h"
#include "platform/qt_text.h"
#include "platform/special_folders.h"
#include "platform/user_settings.h"
#include "ui/main/frmTavelo.h"
#include "ui/settings/frmInstellingen.h"

#include <QDir>
#include <QFileInfo>
#include <QLocale>

int main(int argc, char** argv) {
    using namespace tavelo;

    Application toepassing(argc, argv);
    DutchTexts nederlands;
    QCoreApplication::installTranslator(&nederlands);
    QLocale::setDefault(QLocale(QLocale::Dutch, QLocale::Netherlands)); // of the dialogs; a workbook has the system's

    DialogOwner eigenaar;
    FontTextMeasure meter;
    QtMessageBox berichten(eigenaar);
    QtOpenDialog open_dialoog(eigenaar);
    QtColourDialog kleur_dialoog(eigenaar);
    SystemFileStamp tijdstempels;
    SystemClock klok;
    QtPointer muisaanwijzer;
    DebugLog logboek;
    const auto opslag = user_settings();
    SystemFolders mappen;
    SystemBrowser browser;
    BackgroundReader lezer(post_to_interface);
    ExcelOrBuiltin excel(installed_excel(),
                         builtin_excel(locale_named(utf8(QLocale::system().name().replace('_', '-')))),
                         [](std::string_view served) { note_excel(served); });

    Programma programma;
    Bediening bediening{
        programma, {meter, berichten, open_dialoog, tijdstempels, klok, muisaanwijzer, logboek, excel}, {}, {}};
    const auto toon_intro = [] { frmIntro().exec(); };
    const auto instellingen = [&](frmTavelo& venster) {
        const auto vertoond = [&] { venster.toon_vertoningen(); };
        frmInstellingen(bediening, kleur_dialoog, vertoond, &venster).exec();
    };
    frmTavelo venster(bediening, {*opslag, mappen, lezer, browser,
                                  utf8(QDir::toNativeSeparators(QCoreApplication::applicationDirPath())), toon_intro,
                                  instellingen});
    eigenaar.window = &venster;
    const Ending einde([&] { venster.close(); }, [&] { bewaar_bij_afsluiten(programma, *opslag); });

    Main(programma, *opslag, mouse_wheel_present, venster);
    if (programma.afgesloten) return 0;
    toepassing.bij_f1([&](const QWidget& waarin) { venster.toon_handleiding(waarin); });
    // A file to open is all that the command line may hold; what is to be set is set in the settings.
    if (const QStringList genoemd = Application::arguments().mid(1); !genoemd.isEmpty())
        venster.open_genoemd(utf8(QDir::toNativeSeparators(QFileInfo(genoemd.constFirst()).absoluteFilePath())));
    return Application::exec();
}
