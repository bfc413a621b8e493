#pragma once

class QString;
class QTranslator;

/// Puts Qt's own texts (the context menu of a text box and the like) into Portuguese, whatever the
/// system's language. The number format stays the system's.
///
/// `tradutor` gets the texts and is installed in the application, which must exist; it must live as
/// long as the texts are to be shown. They are taken from "translations" in `pastaPrograma`, else
/// from Qt's own directory. Returns false, and changes nothing, where neither has them: those texts
/// are English then.
bool PoeEmPortugues(QTranslator &tradutor, const QString &pastaPrograma);
