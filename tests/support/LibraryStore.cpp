#include "tests/support/LibraryStore.h"

namespace {

QByteArray description(const char* version)
{
    return QByteArray(R"({
        "version": ")") +
           version + R"(",
        "entities": [
            { "name": "Library", "class": "",
              "attributes": [ { "name": "name", "type": "text", "default": "" } ],
              "relationships": [ { "name": "books", "destination": "Book", "toMany": true,
                                   "inverse": "library", "deleteRule": "cascade" } ] },
            { "name": "Book", "class": "Book",
              "attributes": [ { "name": "title", "type": "text" },
                              { "name": "price", "type": "decimal", "default": "0" },
                              { "name": "published", "type": "date" },
                              { "name": "weight", "type": "double" },
                              { "name": "note", "type": "text", "transient": true } ],
              "relationships": [ { "name": "library", "destination": "Library",
                                   "inverse": "books", "deleteRule": "nullify" } ],
              "indexes": [ { "name": "library", "properties": [ "library", "published" ] } ] } ] })";
}

NSManagedObjectModel makeModel(const char* version)
{
    auto model = NSManagedObjectModel::mergedModel({description(version)});
    model.bindClass(
        {"Book", {"title", "price", "published", "weight", "note"}, [](RecordTable& table) {
             return std::make_unique<Book>(table);
         }});
    return model;
}

} // namespace

bool Book::validateForUpdate()
{
    const auto price = propertyValueAs<NSDecimalNumber>(valueForKey("price"));
    if (price && *price < NSDecimalNumber()) {
        setValueForKey(NSDecimalNumber(), "price");
    }
    return true;
}

LibraryStore::LibraryStore(const char* version)
    : m_model(makeModel(version))
{}

void LibraryStore::open()
{
    m_context.reset();
    m_coordinator = std::make_unique<NSPersistentStoreCoordinator>(m_model);
    m_coordinator->addPersistentStore(path());
    m_context = std::make_unique<NSManagedObjectContext>(*m_coordinator);
}

void LibraryStore::reopen()
{
    m_context.reset();
    m_coordinator.reset();
    open();
}

NSManagedObject& LibraryStore::insertLibrary(const QString& name)
{
    auto& library = m_context->insertNewObjectForEntityForName("Library");
    library.setValueForKey(name, "name");
    return library;
}

NSManagedObject& LibraryStore::insertBook(NSManagedObject* library, const QString& title,
                                          const char* price)
{
    auto& book = m_context->insertNewObjectForEntityForName("Book");
    book.setValueForKey(title, "title");
    book.setValueForKey(decimal(price), "price");
    book.setRelatedObject("library", library);
    return book;
}

NSDecimalNumber decimal(const char* text)
{
    return NSDecimalNumber::fromText(text).value();
}

QString textOf(const NSManagedObject& record, std::string_view key)
{
    return propertyValueAs<QString>(record.valueForKey(key)).value_or(QString());
}

std::string decimalOf(const NSManagedObject& record, std::string_view key)
{
    const auto value = propertyValueAs<NSDecimalNumber>(record.valueForKey(key));
    return value ? value->toPlainText() : "absent";
}
