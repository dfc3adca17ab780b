// Documents that a workflow has open in the Spectrometer application, and closes however it ends.
#pragma once

#include "acquisition/spectrometer_session.h"

#include <memory>
#include <string>
#include <vector>

namespace veritane::acquisition {

// Closes what is still open at its own end, without saving and in the order of opening. A document that
// cannot be closed then is the application's to keep: how the workflow itself ended is what the user has to
// hear of.
class OpenedDocuments {
public:
  OpenedDocuments() = default;
  ~OpenedDocuments();
  OpenedDocuments(const OpenedDocuments&) = delete;
  OpenedDocuments& operator=(const OpenedDocuments&) = delete;

  // Opens or creates a file as the session's current document.
  void Open(SpectrometerSession& session, const std::string& path);
  void Create(SpectrometerSession& session, const std::string& path);
  // Takes a document that is open already.
  void Add(std::shared_ptr<Document> document);
  // The application may hand out another object for the document opened last.
  void ReplaceLast(std::shared_ptr<Document> document);
  // Hands over the document opened last: it is closed, or the caller closes it.
  std::shared_ptr<Document> ReleaseLast();

private:
  std::vector<std::shared_ptr<Document>> documents_;
};

}  // namespace veritane::acquisition
