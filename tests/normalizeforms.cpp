// Writes Qt Designer forms as Designer's own library would save them, so that a person who
// edits one gets a diff of that edit alone.
//
//   normalizeforms FORM ...           rewrites the forms that would change
//   normalizeforms --check FORM ...   names them instead, and fails if there are any

#include <QApplication>
#include <QDesignerComponents>
#include <QDesignerFormEditorInterface>
#include <QDesignerFormWindowInterface>
#include <QDesignerFormWindowManagerInterface>
#include <QDesignerIntegration>
#include <QDesignerPropertyEditorInterface>
#include <QFile>
#include <QRegularExpression>
#include <QSettings>
#include <QTemporaryDir>
#include <QTextStream>
#include <memory>

namespace {

QByteArray read(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(path));
    return file.readAll();
}

void write(const QString &path, const QByteArray &form)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(form) != form.size())
        qFatal("cannot write %s", qPrintable(path));
}

// Two things of a form are Designer's own affair: the size of a dialog with a layout grows to
// what its texts need in the fonts of the desktop, and button groups come in a random order.
// They are left as they are.
QString withWhims(const QString &before, QString form)
{
    const auto first = [](const char *pattern, const QString &text) {
        return QRegularExpression(pattern, QRegularExpression::DotMatchesEverythingOption)
            .match(text);
    };
    const auto take = [&](const QRegularExpressionMatch &old, const QRegularExpressionMatch &now) {
        form.replace(now.capturedStart(), now.capturedLength(), old.captured());
    };
    const auto sorted = [](const QRegularExpressionMatch &match) {
        QStringList lines = match.captured().split('\n');
        lines.sort();
        return lines;
    };
    constexpr char size[] = "<rect>.*?</rect>";
    take(first(size, before), first(size, form));
    constexpr char groups[] = "<buttongroups>.*</buttongroups>";
    if (sorted(first(groups, before)) == sorted(first(groups, form)))
        take(first(groups, before), first(groups, form));
    return form;
}

QByteArray saved(QDesignerFormEditorInterface &designer, const QString &path)
{
    const QString before = QString::fromUtf8(read(path));
    const std::unique_ptr<QDesignerFormWindowInterface> form(
        designer.formWindowManager()->createFormWindow());
    form->setFileName(path);
    if (!form->setContents(before))
        qFatal("Designer cannot open %s", qPrintable(path));
    return withWhims(before, form->contents()).toUtf8();
}

} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    // Designer's library keeps settings, which are nobody's here.
    const QTemporaryDir settings;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings.path());
    const std::unique_ptr<QDesignerFormEditorInterface> designer(
        QDesignerComponents::createFormEditor(nullptr));
    designer->setPropertyEditor(QDesignerComponents::createPropertyEditor(designer.get(), nullptr));
    new QDesignerIntegration(designer.get(), designer.get());

    QStringList forms = QApplication::arguments().mid(1);
    const bool check = forms.removeOne("--check");
    QTextStream out(stdout);
    int changed = 0;
    for (const QString &path : qAsConst(forms)) {
        const QByteArray form = saved(*designer, path);
        if (form == read(path))
            continue;
        ++changed;
        out << (check ? "Designer would change " : "rewritten: ") << path << '\n';
        if (!check)
            write(path, form);
    }
    return check && changed > 0 ? 1 : 0;
}
