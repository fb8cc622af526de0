#pragma once

#include <QFile>
#include <QString>

#include <iterator>

/// The bytes of a document, one after the other. No row of it can fill the memory: between two
/// calls of `EndRow` it gives a limited number of bytes, and then fails with
/// ErrorNumber::TypeMismatch.
class DocumentInput {
public:
    explicit DocumentInput(const QString& path); ///< fails if the file cannot be read

    void EndRow() { rowBegin_ = Taken(); }
    qint64 Taken() const { return bufferBegin_ + at_; }
    qint64 Size() const { return file_.size(); }

    /// As the parser wants it. All iterators of an input are at the same byte.
    class Iterator {
    public:
        using iterator_category = std::input_iterator_tag;
        using value_type = char;
        using difference_type = std::ptrdiff_t;
        using pointer = const char*;
        using reference = char;

        explicit Iterator(DocumentInput* input = nullptr)
            : input_(input) {}
        char operator*() const { return input_->buffer_[input_->at_]; }
        Iterator& operator++() {
            ++input_->at_;
            return *this;
        }
        bool operator==(const Iterator&) const { return input_->IsAtEnd(); }

    private:
        DocumentInput* input_;
    };
    Iterator begin() { return Iterator(this); }
    Iterator end() { return Iterator(this); }

private:
    bool IsAtEnd() { return at_ >= buffer_.size() && !ReadMore(); }
    bool ReadMore();

    QFile file_;
    QByteArray buffer_;
    qsizetype at_ = 0;
    qint64 bufferBegin_ = 0;
    qint64 rowBegin_ = 0;
};
