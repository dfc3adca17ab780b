// Closing documents at a workflow's end.
#include "acquisition/opened_documents.h"

#include "platform/run_time_error.h"

#include <utility>

namespace veritane::acquisition {

OpenedDocuments::~OpenedDocuments() {
  for (const auto& document : documents_) {
    try {
      document->CloseDocument(false);
    } catch (const platform::RunTimeError&) {
      continue;
    }
  }
}

void OpenedDocuments::Open(SpectrometerSession& session, const std::string& path) {
  session.Open(path);
  Add(session.CurrentDocument);
}

void OpenedDocuments::Create(SpectrometerSession& session, const std::string& path) {
  session.Create(path);
  Add(session.CurrentDocument);
}

void OpenedDocuments::Add(std::shared_ptr<Document> document) {
  documents_.push_back(std::move(document));
}

void OpenedDocuments::ReplaceLast(std::shared_ptr<Document> document) {
  documents_.back() = std::move(document);
}

std::shared_ptr<Document> OpenedDocuments::ReleaseLast() {
  auto document = std::move(documents_.back());
  documents_.pop_back();
  return document;
}

}  // namespace veritane::acquisition
