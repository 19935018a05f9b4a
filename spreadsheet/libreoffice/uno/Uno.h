#pragma once

#include <QDir>
#include <QString>
#include <QUrl>

#include <com/sun/star/beans/PropertyValue.hpp>
#include <com/sun/star/uno/Any.hxx>
#include <com/sun/star/uno/Reference.hxx>
#include <com/sun/star/uno/Sequence.hxx>
#include <rtl/ustring.hxx>

namespace zvonika {

namespace css = com::sun::star;
template <typename Interface>
using Ref = css::uno::Reference<Interface>;

inline QString fromUno(const rtl::OUString& text) {
    return QString(reinterpret_cast<const QChar*>(text.getStr()), text.getLength());
}

inline rtl::OUString toUno(const QString& text) {
    return rtl::OUString(reinterpret_cast<const sal_Unicode*>(text.utf16()),
                         static_cast<sal_Int32>(text.size()));
}

inline rtl::OUString fileUrl(const QString& nativePath) {
    return toUno(QString::fromLatin1(QUrl::fromLocalFile(nativePath).toEncoded()));
}

/// The native path of a file URL; "" for any other.
inline QString nativePath(const rtl::OUString& url) {
    return QDir::cleanPath(QUrl::fromEncoded(fromUno(url).toLatin1()).toLocalFile());
}

/// The interface `I` of an object; empty when it has none.
template <typename I, typename Object>
Ref<I> as(const Object& object) {
    return Ref<I>(object, css::uno::UNO_QUERY);
}

using Properties = css::uno::Sequence<css::beans::PropertyValue>;

template <typename Value>
css::beans::PropertyValue property(const char* name, const Value& value) {
    css::beans::PropertyValue made;
    made.Name = rtl::OUString::createFromAscii(name);
    made.Value <<= value;
    return made;
}

template <typename... Each>
Properties properties(const Each&... each) {
    const css::beans::PropertyValue all[] = {each...};
    return Properties(all, sizeof...(each));
}

} // namespace zvonika
