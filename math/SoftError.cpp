#include "SoftError.h"

#include "Dialogs.h"

namespace quorb {
namespace {

const char* const kExplanation =
    "Une petite erreur s'est produite, erreur d'arrondi ou avertissement de norme nulle, ..."
    ". Si cela perdure, il faudrait modifier les données..."
    "   Tapez *Abandonner* pour stopper l'exectution, *Répéter* pour faire une pause  *Ignorer* pour "
    "continuer "
    "et terminer l'exécution du programme.";

// Only a developer at a debugger sets `continuer`; for the user the pause lasts until the program is ended by
// another route.
void PauseForCorrection(Dialogs& dialogs) {
  dialogs.MessageBox("Corrigez vos données! Cliquer ensuite sur Continuer ...", "CORRECTION", kBoxOk);
  volatile int continuer = 0;
  while (continuer != 1) {
    dialogs.PumpEvents();
  }
  continuer = 0;
}

void AskForLine(Dialogs& dialogs, const std::string& prompt, const std::string& title,
                const std::string& defaultAnswer) {
  softAnswer = dialogs.InputBox(prompt, title, defaultAnswer);
  if (softAnswer.empty() || softAnswer.starts_with("o")) return;
  if (softAnswer.starts_with("s")) {
    dialogs.EndProgram();
    return;
  }
  softAnswer =
      dialogs.InputBox("Vous voulez réellement abandonner", "Re-Avertissement", "oui, pour Abandonner");
  if (softAnswer.starts_with("o")) dialogs.EndProgram();
}

}  // namespace

void SoftError(const std::string& message) {
  const std::string defaultAnswer = softFirst == 0.0 ? std::string() : softAnswer;
  softFirst = 1.0;
  if (message.starts_with("_")) return;

  Dialogs& dialogs = CurrentDialogs();
  const std::string prompt = message + CrLf + kExplanation;
  switch (dialogs.MessageBox(prompt, "Petite erreur", kBoxAbortRetryIgnore + kBoxExclamationIcon)) {
    case BoxAnswer::abort:
      dialogs.EndProgram();
      return;
    case BoxAnswer::retry:
      PauseForCorrection(dialogs);
      return;
    case BoxAnswer::ignore:
      return;
    default:
      AskForLine(dialogs, prompt, message + " Avertissement", defaultAnswer);
  }
}

}  // namespace quorb
