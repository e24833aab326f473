# What Qt 6 wants otherwise in the sources of Qt 5's SVG module than qt5_names.h can give.
s|qmatrix\.h|qtransform.h|
s|\bQMatrix\b|QTransform|
s|\.toAffine();|;|
s|font\.setWeight(SVGToQtWeight(\(.*\)));|font.setWeight(QFont::Weight(SVGToQtWeight(\1)));|
s|(uncStr.isEmpty()) ? 0 :|(uncStr.isEmpty()) ? QChar() :|
s|\bunicode = 0;|unicode = QChar();|
s|\*const_cast<QChar \*>(end) = 0;|*const_cast<QChar *>(end) = QChar();|
# A node is asked for what a selector wants, no longer for a name.
s|QString attribute(NodePtr node, const QString &name) const override|QString attributeValue(NodePtr node, const QCss::AttributeSelector \&selector) const override|
s|(name == QLatin1String("id") |(selector.name == QLatin1String("id") |
s|name == QLatin1String("xml:id"))))|selector.name == QLatin1String("xml:id"))))|
s|!n->xmlClass().isEmpty() && name ==|!n->xmlClass().isEmpty() \&\& selector.name ==|
