#include "every_input.h"

using namespace Qt::StringLiterals;
using namespace vellumo;

namespace {

/// Names that are what they are, whatever a shell, a terminal or the toolkit makes of them.
class OddNames : public EveryInput
{
protected:
    OddNames()
    {
        qputenv("PATH", PROGRAMS);
        QDir::setCurrent(m_folder.path());
    }
    ~OddNames() override { QDir::setCurrent(QDir::tempPath()); }

    const QStringList names = {u"a\nb.vmp"_s,          u"\x1B[31mred.vmp"_s,   u"-dash.vmp"_s,
                               u"-order.vmp"_s,        u"'one' \"two\".vmp"_s, u"--quiet"_s,
                               u"$(id) `id`;*?.vmp"_s, u" blank .vmp"_s,       u"%1%2.vmp"_s,
                               u"\u20AC\u00E9.vmp"_s,  QString(255, u'n')};

    static QString Visible(QString name)
    {
        return name.replace(u'\n', u"\\x0a"_s).replace(u'\x1B', u"\\x1b"_s);
    }

    /// What the command of a place says and makes of an input of this name, but for the name.
    QStringList Doings(const InputPlace &place, const QString &name)
    {
        WriteBytes(name, Sample(place.kind));
        const int exit = Run(place.With(name));
        QStringList doings = {QString::number(exit), Out().replace(Visible(name), u"NAME"_s),
                              Err().replace(Visible(name), u"NAME"_s)};
        for (const QString &made : NamesIn(u"out"_s)) {
            doings += made;
            QFile::remove(u"out/"_s + made);
        }
        QFile::remove(name);
        return doings;
    }
};

} // namespace

TEST_F(OddNames, AreNamesLikeAnyOther)
{
    for (const InputPlace &place : Places()) {
        const QStringList plain = Doings(place, u"plain.vmp"_s);
        EXPECT_NE(plain.first(), u"2"_s) << plain.join(u' ').toStdString();
        EXPECT_NE(plain.first(), u"3"_s) << plain.join(u' ').toStdString();
        for (const QString &name : names)
            EXPECT_EQ(Doings(place, name), plain) << place.With(name).join(u' ').toStdString();
    }
}

TEST_F(OddNames, StandInOneLineWithoutControlCharacters)
{
    for (const InputPlace &place : Places())
        for (const QString &name : names) {
            EXPECT_EQ(Run(place.With(name)), place.whenUnreadable);
            EXPECT_EQ(Err(), Visible(name) + u": No such file or directory\n"_s);
            EXPECT_EQ(Out(), u""_s);
        }
    const QString tooLong = QString(300, u'n');
    for (const InputPlace &place : Places()) {
        EXPECT_EQ(Run(place.With(tooLong)), place.whenUnreadable);
        EXPECT_EQ(Err(), tooLong + u": File name too long\n"_s);
    }
}

TEST_F(OddNames, AreTrueForPrograms)
{
    for (const QString &name : names) {
        EXPECT_EQ(Run({u"review"_s, u"--json"_s, u"--"_s, name}), 3);
        ASSERT_EQ(Objects().size(), 2);
        EXPECT_EQ(Objects()[0][u"file"_s], name);
        EXPECT_EQ(Objects()[1][u"input"_s], name);
    }
}

TEST_F(OddNames, AreVisibleWhereverTheyStand)
{
    const QString name = names.first(), seen = Visible(name);
    WriteBytes(name, Sample(InputKind::Project).replace("[Inspector]", "[Insp\\ector]"));
    EXPECT_EQ(Run({u"review"_s, name, name}), 1);
    EXPECT_TRUE(Out().startsWith(seen + u": warning: "_s)) << out.str();
    EXPECT_EQ(Run({name}), 2);
    EXPECT_EQ(Err(), u"vellumo: There is no command '%1'.\nTry 'vellumo --help'.\n"_s.arg(seen));
    watched = true;
    EXPECT_EQ(Run({u"columns"_s, name, name}), 0);
    EXPECT_EQ(Err(), u"1 of 2: %1\n2 of 2: %1\n"_s.arg(seen));
}
