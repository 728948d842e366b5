// SPDX-FileCopyrightText: 2026 The CommonGUI developers
// SPDX-License-Identifier: BSD-3-Clause
#include <QDropEvent>
#include <QMimeData>
#include <QPluginLoader>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>
#include <QXmlStreamReader>

class tst_DesignerPlugin : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void collection();
    void widget_data();
    void widget();
    void propertyRoundTrip_data();
    void propertyRoundTrip();
    void suffixPropertyTakesDrops();
    void overlaySelectableAtDesignTime();

private:
    QDesignerCustomWidgetInterface *find(const QString &name) const;

    QPluginLoader m_loader;
    QList<QDesignerCustomWidgetInterface *> m_widgets;
};

void tst_DesignerPlugin::initTestCase()
{
    const QString path = qEnvironmentVariable("COMMONGUI_DESIGNER_PLUGIN");
    QVERIFY2(!path.isEmpty(), "COMMONGUI_DESIGNER_PLUGIN names the plugin file");
    m_loader.setFileName(path);
    QVERIFY2(m_loader.load(), qPrintable(m_loader.errorString()));
    auto collection = qobject_cast<QDesignerCustomWidgetCollectionInterface *>(m_loader.instance());
    QVERIFY2(collection, "the plugin is no widget collection");
    m_widgets = collection->customWidgets();
}

QDesignerCustomWidgetInterface *tst_DesignerPlugin::find(const QString &name) const
{
    for (QDesignerCustomWidgetInterface *widget : m_widgets) {
        if (widget->name() == name)
            return widget;
    }
    return nullptr;
}

void tst_DesignerPlugin::collection()
{
    QStringList names;
    for (QDesignerCustomWidgetInterface *widget : m_widgets)
        names << widget->name();
    names.sort();
    QCOMPARE(names, QStringList({ "ClickableLineEdit", "CustomLineEdit", "QHexEdit", "TextOverlay" }));
}

void tst_DesignerPlugin::widget_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("include");
    QTest::addColumn<QString>("baseClass");

    QTest::newRow("hex editor") << "QHexEdit" << "<CommonGUI/QHexEdit.h>" << "QAbstractScrollArea";
    QTest::newRow("link field") << "ClickableLineEdit" << "<CommonGUI/ClickableLineEdit.h>" << "QLineEdit";
    // Designer reports a class mismatch when the meta-object names another class.
    QTest::newRow("drop field") << "CustomLineEdit" << "<CommonGUI/CustomLineEdit.h>" << "QLineEdit";
    QTest::newRow("overlay") << "TextOverlay" << "<CommonGUI/TextOverlay.h>" << "QWidget";
}

void tst_DesignerPlugin::widget()
{
    QFETCH(QString, name);
    QFETCH(QString, include);
    QFETCH(QString, baseClass);

    QDesignerCustomWidgetInterface *plugin = find(name);
    QVERIFY(plugin);
    QCOMPARE(plugin->group(), QStringLiteral("CommonGUI"));
    QCOMPARE(plugin->includeFile(), include);
    QVERIFY(!plugin->isContainer());
    QVERIFY(!plugin->icon().isNull());
    QVERIFY(!plugin->toolTip().isEmpty());
    QVERIFY(!plugin->whatsThis().isEmpty());

    QWidget form;
    QWidget *widget = plugin->createWidget(&form);
    QVERIFY(widget);
    QCOMPARE(widget->parentWidget(), &form);
    QCOMPARE(QString::fromLatin1(widget->metaObject()->className()), name);
    QCOMPARE(QString::fromLatin1(widget->metaObject()->superClass()->className()), baseClass);

    // Designer reads the class and the default geometry from the XML.
    QXmlStreamReader xml(plugin->domXml());
    QString widgetClass;
    int width = 0;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QLatin1String("widget") && widgetClass.isEmpty())
            widgetClass = xml.attributes().value(QLatin1String("class")).toString();
        else if (xml.name() == QLatin1String("width"))
            width = xml.readElementText().toInt();
    }
    QVERIFY2(!xml.hasError(), qPrintable(xml.errorString()));
    QCOMPARE(widgetClass, name);
    QVERIFY(width >= 100);
}

void tst_DesignerPlugin::propertyRoundTrip_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<QVariant>("value");

    QTest::newRow("hex: read-only") << "QHexEdit" << QByteArray("readOnly") << QVariant(true);
    QTest::newRow("hex: overwrite mode off") << "QHexEdit" << QByteArray("overwriteMode") << QVariant(false);
    QTest::newRow("hex: no address area") << "QHexEdit" << QByteArray("addressArea") << QVariant(false);
    QTest::newRow("hex: no character area") << "QHexEdit" << QByteArray("asciiArea") << QVariant(false);
    QTest::newRow("hex: address colour")
            << "QHexEdit" << QByteArray("addressAreaColor") << QVariant(QColor(0x12, 0x34, 0x56));
    QTest::newRow("hex: selection colour")
            << "QHexEdit" << QByteArray("selectionColor") << QVariant(QColor(0xaa, 0xbb, 0xcc));
    QTest::newRow("hex: address width") << "QHexEdit" << QByteArray("addressWidth") << QVariant(6);
    QTest::newRow("link field: text") << "ClickableLineEdit" << QByteArray("text") << QVariant("https://x");
    QTest::newRow("drop field: suffixes")
            << "CustomLineEdit" << QByteArray("acceptedSuffixes") << QVariant(QStringList({ "eds", "dcf" }));
    QTest::newRow("drop field: no return")
            << "CustomLineEdit" << QByteArray("invokeReturnPressed") << QVariant(false);
    QTest::newRow("overlay: caption") << "TextOverlay" << QByteArray("text") << QVariant("OFFLINE");
}

void tst_DesignerPlugin::propertyRoundTrip()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, property);
    QFETCH(QVariant, value);

    QWidget form;
    QDesignerCustomWidgetInterface *plugin = find(name);
    QVERIFY(plugin);
    QWidget *widget = plugin->createWidget(&form);
    const QMetaObject *meta = widget->metaObject();
    const int index = meta->indexOfProperty(property.constData());
    QVERIFY2(index >= 0, property.constData());
    // Only designable, writable properties reach the property editor.
    QVERIFY(meta->property(index).isWritable());
    QVERIFY(meta->property(index).isDesignable());
    QVERIFY(widget->property(property.constData()) != value);

    QVERIFY(widget->setProperty(property.constData(), value));
    QCOMPARE(widget->property(property.constData()), value);
}

// The suffix list set as a property is the one drops are judged by.
void tst_DesignerPlugin::suffixPropertyTakesDrops()
{
    QTemporaryDir dir;
    QVERIFY2(dir.isValid(), qPrintable(dir.errorString()));
    QWidget form;
    QWidget *field = find(QStringLiteral("CustomLineEdit"))->createWidget(&form);
    field->setProperty("acceptedSuffixes", QStringList({ "dcf" }));
    QSignalSpy returns(field, SIGNAL(returnPressed()));

    auto drop = [field](const QString &path) {
        QMimeData data;
        data.setUrls({ QUrl::fromLocalFile(path) });
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(field, &enter);
        QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(field, &drop);
    };
    drop(dir.filePath("node.eds"));
    QCOMPARE(field->property("text").toString(), QString());
    drop(dir.filePath("node.dcf"));
    QCOMPARE(field->property("text").toString(), dir.filePath("node.dcf"));
    QCOMPARE(returns.count(), 1);
}

void tst_DesignerPlugin::overlaySelectableAtDesignTime()
{
    QWidget form;
    QWidget *overlay = find(QStringLiteral("TextOverlay"))->createWidget(&form);
    QVERIFY(!overlay->testAttribute(Qt::WA_TransparentForMouseEvents));
}

QTEST_MAIN(tst_DesignerPlugin)
#include "tst_designerplugin.moc"
