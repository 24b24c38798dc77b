#pragma once

#include <QIcon>

/** The pictograms of the commands. */
enum class CommandIcon {
    None,
    // The pages of the gallery
    Colors,
    Fonts,
    Images,
    Shadows,
    Buttons,
    Labels,
    Ribbon,
    Page,
    // Documents
    New,
    Open,
    Save,
    Print,
    Paste,
    Cut,
    Copy,
    // Bookkeeping
    Invoice,
    CreditNote,
    Cash,
    Transfer,
    Bank,
    Proposal,
    Check,
    Lock,
    // Evaluation
    Chart,
    Balance,
    Profit,
    Totals,
    OpenItems,
    Journal,
    Reminder,
    Export,
    // View and help
    Classic,
    Modern,
    Larger,
    Smaller,
    Reset,
    Options,
    Manual,
    News,
    Keyboard,
    Info,
    // A single document
    Edit,
    Cancel,
    Attach,
    Scan,
    Remove
};

/** A pictogram in the colours of the theme, drawn for each size and ratio that is asked for. */
QIcon commandIcon(CommandIcon icon);
